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
  /// The data registers of the ports.
  static constexpr std::array<std::int32_t, 3> ports{0x378, 0x278, 0x3BC};

  /// All must outlive it; the sleeper gives the time.
  Recorder(platform::PortRegisters& registers, const platform::PortStates& states,
           const platform::Sleeper& sleeper);

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;

  /// This board hangs on every port from now on.
  void use(link::Pcb pcb);

  /// Up to now nothing else has gone out; room ahead is made.
  void pass();

  /// Whether the last write to this register went out.
  bool wentOut(std::int32_t address) const;

  /// Of the port with this data register.
  const Trace& trace(std::int32_t dataAddress) const;

  /// Called behind each write that has changed a level.
  std::function<void()> changed;

 private:
  struct Port {
    std::int32_t address;
    Trace trace;
    Levels reached = 0;  ///< wires of the registers whose last write went out
  };
  /// Which port a register belongs to, and the wires of the register; behind all if there is none.
  std::size_t portOf(std::int32_t address, Levels& wires) const;
  void note(Port& port, Levels wires, std::uint8_t value);

  platform::PortRegisters& registers_;
  const platform::PortStates& states_;
  const platform::Sleeper& sleeper_;
  std::array<Port, ports.size()> ports_;
};

}  // namespace monitra::wire
