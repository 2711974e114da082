#pragma once

#include <chrono>
#include <cstdint>

/// What went out on the pins of a printer port, and what can be told of it.
namespace monitra::wire {

/// A moment on the clock of its recording.
using Time = std::chrono::nanoseconds;

/// The levels of up to sixteen wires, a bit for each. Of a printer port the lower eight are its
/// data register, the upper eight its control register.
using Levels = std::uint16_t;

inline constexpr int maxWires = 16;

constexpr Levels wireMask(int wire) {
  return static_cast<Levels>(1U << static_cast<unsigned>(wire));
}

struct Change {
  Time time;
  Levels levels;  ///< of all wires from then on
};

}  // namespace monitra::wire
