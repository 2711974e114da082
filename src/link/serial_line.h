#pragma once

#include <cstdint>

#include "link/port_selection.h"
#include "platform/port_registers.h"
#include "platform/sleeper.h"

namespace monitra::link {

/// The one-way, two-wire line to the controller, clocked by hand over two pins of the data
/// register of the port selected in LPT. Each operation blocks until its last wait is over, and
/// leaves the other six pins as it finds them. All arguments must outlive it.
class SerialLine {
 public:
  SerialLine(const PortSelection& port, platform::PortRegisters& registers,
             platform::Sleeper& sleeper);

  /// One bit: data with the clock low, high, low, each level held for at least 1 ms.
  void SorosBit(bool bit);

  /// One byte, least significant bit first.
  void SorosBajt(std::uint8_t value);

  /// Both lines low, by one write and without a wait.
  void SorosAlap();

 private:
  void writeAndWait(std::int32_t address, std::uint8_t value);

  const PortSelection& port_;
  platform::PortRegisters& registers_;
  platform::Sleeper& sleeper_;
};

}  // namespace monitra::link
