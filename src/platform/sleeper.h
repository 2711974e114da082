#pragma once

namespace monitra::platform {

/// Waiting on the program's one thread.
class Sleeper {
 public:
  virtual ~Sleeper() = default;

  /// Returns when at least this many milliseconds have passed since the call.
  virtual void Sleep(int milliseconds) = 0;
};

}  // namespace monitra::platform
