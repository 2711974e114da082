#pragma once

#include <optional>

#include "wire/history.h"

namespace monitra::wire {

/// A level of a wire at some moment, between the two edges around it.
struct Width {
  Time from;
  Time to;
  bool level;
  std::optional<Time> period;  ///< from its first edge to the next one of the same direction, or
                               ///< the one before where there is none

  Time width() const { return to - from; }
  std::optional<double> hertz() const;
};

/// None where one of the two edges is missing.
std::optional<Width> widthAt(const History& history, int wire, Time at);

/// How long the levels of a wire stood between two moments. Only those count that begin and end
/// there.
struct Widths {
  long count = 0;
  Time least{};
  Time mean{};
  Time greatest{};
};
Widths widthsBetween(const History& history, int wire, Time from, Time to);

}  // namespace monitra::wire
