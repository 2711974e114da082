#pragma once

#include <array>
#include <string>

#include "controller/virtual_controller.h"
#include "link/pin_map.h"
#include "wire/decoder.h"
#include "wire/history.h"
#include "wire/path.h"

namespace monitra::wire {

/// What the wires of a recording are.
struct Layout {
  std::array<std::string, maxWires> names;  ///< empty: there is no such wire
  SerialLines lines;
  /// How a controller hears them. Of a recording without a board it hears the serial line only.
  controller::Wiring wiring;
  bool hasBoard = false;  ///< the wires of steps, directions and the relay are there too
};

/// A printer port with a board on it.
Layout boardLayout(link::Pcb pcb);

/// Two wires of any names, and what else a recording has. The data wire is wire 0, the clock
/// wire 1.
Layout plainLayout(std::array<std::string, maxWires> names);

/// What went over some wires, and what a controller makes of it as it comes: the messages and the
/// machine.
class Trace {
 public:
  explicit Trace(Layout layout, std::size_t blocks = History::liveBlocks);

  /// Another board hangs there from now on. What has been made of the levels up to now stays.
  void use(const Layout& layout);

  /// The levels from this time on, which is not before the last one; those of unknown wires are 0.
  /// Equal levels are no change.
  void take(Time time, Levels levels, Levels known);
  /// Nothing has changed up to this time.
  void pass(Time now);
  /// The recording ends here.
  void finish(Time end);

  /// Room ahead, as History::prepare().
  void prepare() { history_.prepare(); }

  const Layout& layout() const { return layout_; }
  const History& history() const { return history_; }
  const Decoder& decoder() const { return decoder_; }
  const controller::Machine& machine() const { return controller_.machine(); }
  const Path& path() const { return path_; }
  /// Of the last step of X, Y, Z: 1 or -1; 0 ahead of the first.
  const std::array<int, 3>& directions() const { return directions_; }

  Levels levels() const { return levels_; }
  Levels known() const { return known_; }
  /// Since when the level of a wire is known; behind everything if it isn't.
  Time knownSince(int wire) const { return knownSince_[static_cast<std::size_t>(wire)]; }
  Time start() const { return history_.startTime(); }
  Time end() const { return end_; }  ///< up to when it is known what went out

 private:
  void hear(Levels changed);
  void followSteps(const std::array<controller::Machine::Axis, 3>& before);

  Layout layout_;
  History history_;
  Decoder decoder_;
  controller::VirtualController controller_;
  Path path_;
  std::array<int, 3> directions_{};
  Levels levels_ = 0;
  Levels known_ = 0;
  std::array<Time, maxWires> knownSince_;
  Time end_{};
};

}  // namespace monitra::wire
