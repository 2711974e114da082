#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

#include "platform/port_registers.h"
#include "ports/register_memory.h"
#include "ports/virtual_controller.h"

namespace monitra::ports {

/// Printer ports at the three usual addresses. On each hangs a virtual controller of either board
/// revision, and both see the levels of all eight data pins.
class SimulatedPort : public platform::PortRegisters {
 public:
  SimulatedPort();

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;

  /// What one of the controllers has taken: data address of its port, its wiring, the message.
  std::function<void(std::int32_t, const Wiring&, const Received&)> received;

 private:
  RegisterMemory registers_;
  std::map<std::int32_t, std::vector<VirtualController>> controllers_;
};

}  // namespace monitra::ports
