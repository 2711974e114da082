#pragma once

#include <cstdint>

namespace monitra::platform {

/// The registers of the printer ports, by address. Neither operation can fail: where no port
/// answers, writes vanish and a read gives what was last written.
class PortRegisters {
 public:
  virtual ~PortRegisters() = default;

  /// The register's content: for a data or control register, the value last written.
  virtual std::uint8_t DlPortReadPortUchar(std::int32_t address) = 0;

  /// The value stands on the register's pins when the call returns.
  virtual void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) = 0;
};

}  // namespace monitra::platform
