#include "wire/recorder.h"

#include <algorithm>
#include <cassert>

#include "link/port_selection.h"

namespace monitra::wire {

namespace {

constexpr int bitsOfRegister = 8;
constexpr Levels dataWires = 0x00FF;
/// Bits above its lines are no pins.
constexpr Levels controlWires = 0x0F00;

}  // namespace

Recorder::Recorder(platform::PortRegisters& registers, const platform::PortStates& states,
                   const platform::Sleeper& sleeper)
    : registers_(registers),
      states_(states),
      sleeper_(sleeper),
      ports_{Port{ports[0], Trace(boardLayout(link::Pcb::V4x))},
             Port{ports[1], Trace(boardLayout(link::Pcb::V4x))},
             Port{ports[2], Trace(boardLayout(link::Pcb::V4x))}} {
  for (Port& port : ports_) port.trace.prepare();
}

std::uint8_t Recorder::DlPortReadPortUchar(std::int32_t address) {
  return registers_.DlPortReadPortUchar(address);
}

void Recorder::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  const long vanished = states_.vanished();
  registers_.DlPortWritePortUchar(address, value);
  Levels wires = 0;
  const std::size_t which = portOf(address, wires);
  if (which == ports_.size()) return;
  Port& port = ports_[which];
  if (states_.vanished() != vanished) {
    port.reached &= static_cast<Levels>(~wires);
  } else {
    port.reached |= wires;
    note(port, wires, value);
  }
}

std::size_t Recorder::portOf(std::int32_t address, Levels& wires) const {
  std::size_t which = 0;
  for (; which < ports_.size(); ++which) {
    const std::int32_t data = ports_[which].address;
    if (address == data) wires = dataWires;
    if (address == link::controlAddress(data)) wires = controlWires;
    if (wires != 0) break;
  }
  return which;
}

void Recorder::note(Port& port, Levels wires, std::uint8_t value) {
  Trace& trace = port.trace;
  const auto shifted = static_cast<Levels>(wires == dataWires ? value : value << bitsOfRegister);
  const auto levels = static_cast<Levels>((trace.levels() & ~wires) | (shifted & wires));
  const bool moves = (trace.known() & wires) == 0 || levels != trace.levels();
  trace.take(sleeper_.now(), levels, trace.known() | wires);
  if (moves && changed) changed();
}

bool Recorder::wentOut(std::int32_t address) const {
  Levels wires = 0;
  const std::size_t which = portOf(address, wires);
  return which < ports_.size() && (ports_[which].reached & wires) != 0;
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
