#pragma once

#include <cstdint>
#include <map>

#include "platform/port_registers.h"

namespace monitra::ports {

/// Registers with nothing behind them: a read gives what was last written, 0 before that.
/// It stands in where the PC has no usable port.
class RegisterMemory : public platform::PortRegisters {
 public:
  std::uint8_t DlPortReadPortUchar(std::int32_t address) override { return values_[address]; }
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override {
    values_[address] = value;
  }

 private:
  std::map<std::int32_t, std::uint8_t> values_;
};

}  // namespace monitra::ports
