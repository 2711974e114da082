#pragma once

#include <array>
#include <functional>

#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "platform/sleeper.h"
#include "wire/trace.h"

namespace monitra::wire {

/// Passes everything on to the registers and keeps, for each port, what went out on its pins. A
/// write that no port has taken did not go out.
class Recorder : public platform::PortRegisters {
 public:
  /// All must outlive it; the sleeper gives the time.
  Recorder(platform::PortRegisters& registers, const platform::PortStates& states,
           const platform::Sleeper& sleeper);

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;

  /// This board hangs on every port from now on.
  void use(link::Pcb pcb);

  /// Up to now nothing else has gone out; room ahead is made.
  void pass();

  /// Of the port with this data register, one of &H378, &H278 and &H3BC.
  const Trace& trace(std::int32_t dataAddress) const;

  /// Called behind each write that has changed a level.
  std::function<void()> changed;

 private:
  struct Port {
    std::int32_t address;
    Trace trace;
  };
  void note(std::int32_t address, std::uint8_t value);

  platform::PortRegisters& registers_;
  const platform::PortStates& states_;
  const platform::Sleeper& sleeper_;
  std::array<Port, 3> ports_;
};

}  // namespace monitra::wire
