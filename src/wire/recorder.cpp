#include "wire/recorder.h"

#include <algorithm>
#include <cassert>

#include "ports/port_driver.h"
#include "ports/printer_ports.h"

namespace monitra::wire {

namespace {

constexpr int bitsOfRegister = 8;
constexpr Levels dataWires = 0x00FF;
constexpr Levels controlWires = ports::controlLines << bitsOfRegister;

}  // namespace

Recorder::Recorder(platform::PortRegisters& registers, const platform::PortStates& states,
                   const platform::Sleeper& sleeper)
    : registers_(registers),
      states_(states),
      sleeper_(sleeper),
      ports_{Port{ports::entryAddresses[0], Trace(boardLayout(link::Pcb::V4x))},
             Port{ports::entryAddresses[1], Trace(boardLayout(link::Pcb::V4x))},
             Port{ports::entryAddresses[2], Trace(boardLayout(link::Pcb::V4x))}} {}

std::uint8_t Recorder::DlPortReadPortUchar(std::int32_t address) {
  return registers_.DlPortReadPortUchar(address);
}

void Recorder::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  const long vanished = states_.vanished();
  registers_.DlPortWritePortUchar(address, value);
  if (states_.vanished() == vanished) note(address, value);
}

void Recorder::note(std::int32_t address, std::uint8_t value) {
  for (Port& port : ports_) {
    const bool isData = address == port.address;
    if (!isData && address != port.address + ports::controlOffset) continue;
    Trace& trace = port.trace;
    const Levels wires = isData ? dataWires : controlWires;
    const auto shifted = static_cast<Levels>(isData ? value : value << bitsOfRegister);
    const auto levels = static_cast<Levels>((trace.levels() & ~wires) | (shifted & wires));
    const bool moves = (trace.known() & wires) == 0 || levels != trace.levels();
    trace.take(sleeper_.now(), levels, trace.known() | wires);
    if (moves && changed) changed();
    return;
  }
}

void Recorder::use(link::Pcb pcb) {
  for (Port& port : ports_) port.trace.use(boardLayout(pcb));
}

void Recorder::pass() {
  const Time now = sleeper_.now();
  for (Port& port : ports_) {
    port.trace.pass(now);
    if (!port.trace.history().empty()) port.trace.prepare();
  }
}

const Trace& Recorder::trace(std::int32_t dataAddress) const {
  const auto port = std::ranges::find(ports_, dataAddress, &Port::address);
  assert(port != ports_.end());
  return port->trace;
}

}  // namespace monitra::wire
