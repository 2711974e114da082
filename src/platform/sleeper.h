#pragma once

#include <chrono>

namespace monitra::platform {

/// Time, and waiting on the program's one thread.
class Sleeper {
 public:
  virtual ~Sleeper() = default;

  /// Returns when at least this many milliseconds have passed since the call.
  virtual void Sleep(int milliseconds) = 0;

  /// From now on, or no longer, waits should be as exact as the system grants.
  virtual void bePunctual(bool /*on*/) {}

  /// The present time on a clock that only goes forward.
  virtual std::chrono::nanoseconds now() const = 0;
};

}  // namespace monitra::platform
