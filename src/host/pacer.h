#pragma once

#include "platform/sleeper.h"

namespace monitra::host {

/// Waits on the monotonic clock: sleeps most of the time and spins the rest, so that a wait is
/// never short and ends some microseconds after its time where the system allows it.
class Pacer : public platform::Sleeper {
 public:
  void Sleep(int milliseconds) override;

  /// Puts the calling thread ahead of all ordinary ones where the system grants that.
  void bePunctual(bool on) override;

  /// Counts the time as well that the PC was asleep.
  std::chrono::nanoseconds now() const override;

 private:
  bool refused_ = false;
};

}  // namespace monitra::host
