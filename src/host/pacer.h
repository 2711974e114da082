#pragma once

#include "platform/sleeper.h"

namespace monitra::host {

/// Waits on the monotonic clock: sleeps most of the time and spins the last stretch, so that a
/// wait is never short and ends some microseconds after its time where the system allows it.
class Pacer : public platform::Sleeper {
 public:
  void Sleep(int milliseconds) override;
  std::chrono::nanoseconds now() const override;
};

}  // namespace monitra::host
