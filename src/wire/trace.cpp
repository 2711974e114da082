#include "wire/trace.h"

#include <algorithm>
#include <utility>

#include "link/pin_names.h"

namespace monitra::wire {

Layout boardLayout(link::Pcb pcb) {
  const link::PinMap& pins = link::pinMap(pcb);
  Layout layout;
  const auto data = link::dataPinNames(pins);
  const auto control = link::controlPinNames(pins);
  for (std::size_t bit = 0; bit < data.size(); ++bit) layout.names[bit] = data[bit];
  for (std::size_t bit = 0; bit < data.size() / 2; ++bit) {
    layout.names[data.size() + bit] = control[bit];
  }
  layout.lines = {pins.SorosAdatBit, pins.SorosOrajelBit,
                  static_cast<Levels>(link::mask(pins.XStepBit) | link::mask(pins.YStepBit) |
                                      link::mask(pins.ZStepBit))};
  layout.wiring = pcb == link::Pcb::V32 ? controller::wiringV32 : controller::wiringV4x;
  layout.hasBoard = true;
  return layout;
}

Layout plainLayout(std::array<std::string, maxWires> names) {
  constexpr std::uint8_t none = 15;
  Layout layout;
  layout.names = std::move(names);
  layout.wiring = {"", {none, none, none}, {none, none, none}, 0, 1, none};
  return layout;
}

Trace::Trace(Layout layout, std::size_t blocks)
    : layout_(std::move(layout)),
      history_(blocks),
      decoder_(layout_.lines),
      controller_(layout_.wiring) {
  knownSince_.fill(Time::max());
}

void Trace::use(const Layout& layout) {
  layout_ = layout;
  decoder_.use(layout.lines);
  controller_.use(layout.wiring);
}

void Trace::take(Time time, Levels levels, Levels known) {
  const bool first = history_.empty();
  const auto learnt = static_cast<Levels>(known & ~known_);
  if (!first && learnt == 0 && levels == levels_) return pass(time);
  for (int wire = 0; learnt != 0 && wire < maxWires; ++wire) {
    if ((learnt & wireMask(wire)) != 0) knownSince_[static_cast<std::size_t>(wire)] = time;
  }
  const History::Index oldest = history_.first();
  history_.append(time, levels);
  if (history_.first() != oldest) decoder_.forget(history_.startTime());
  const auto changed = static_cast<Levels>((levels ^ levels_) | learnt);
  levels_ = levels;
  known_ = known;
  end_ = time;
  if (decoder_.take(time, levels, known)) controller_.pause();
  if (layout_.hasBoard || (changed & layout_.lines.mask()) != 0) hear(changed);
}

void Trace::hear(Levels changed) {
  constexpr Levels dataRegister = 0xFF;
  // What isn't known stands high, so that its first level is no edge.
  const auto heard = static_cast<Levels>(levels_ | ~known_);
  if ((changed & dataRegister) != 0) {
    const std::array<controller::Machine::Axis, 3> before = controller_.machine().axes;
    controller_.dataPins(static_cast<std::uint8_t>(heard));
    if (layout_.hasBoard) followSteps(before);
  }
  if (layout_.hasBoard && (changed >> 8) != 0 && (known_ >> 8) != 0) {
    controller_.controlPins(static_cast<std::uint8_t>(heard >> 8));
  }
}

void Trace::followSteps(const std::array<controller::Machine::Axis, 3>& before) {
  const auto& axes = controller_.machine().axes;
  for (std::size_t axis = 0; axis < axes.size(); ++axis) {
    const long way = axes[axis].position() - before[axis].position();
    if (way == 0) continue;
    directions_[axis] = way > 0 ? 1 : -1;
    if (axis < 2) path_.add({axes[0].position(), axes[1].position()});
  }
}

void Trace::pass(Time now) {
  if (history_.empty()) return;
  end_ = std::max(end_, now);
  if (decoder_.pass(now)) controller_.pause();
}

void Trace::finish(Time end) {
  pass(end);
  decoder_.finish();
  controller_.pause();
}

}  // namespace monitra::wire
