#pragma once

#include "ports/kernel_driver.h"
#include "ports/printer_ports.h"
#include "ports/raw_driver.h"

namespace monitra::ports {

/// The ways to the PC's ports that may be taken.
enum class Ways { All, KernelOnly, RawOnly };

namespace detail {
struct Drivers {
  KernelDriver kernel;
  RawDriver raw;
};
}  // namespace detail

/// The printer ports of this PC: through the kernel's driver where it can be, else by registers.
class RealPorts : private detail::Drivers, public PrinterPorts {
 public:
  explicit RealPorts(Ways ways = Ways::All)
      : PrinterPorts(drivers(ways), ControlMemory::ofUser()) {}

 private:
  std::vector<PortDriver*> drivers(Ways ways) {
    if (ways == Ways::KernelOnly) return {&kernel};
    if (ways == Ways::RawOnly) return {&raw};
    return {&kernel, &raw};
  }
};

}  // namespace monitra::ports
