#include "host/pacer.h"

#include <thread>

namespace monitra::host {

using Clock = std::chrono::steady_clock;

void Pacer::Sleep(int milliseconds) {
  /// A sleep ends late by the kernel's timer slack, 50 µs for an ordinary thread, and the wake-up.
  constexpr std::chrono::microseconds spun{120};
  const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
  std::this_thread::sleep_until(deadline - spun);
  while (Clock::now() < deadline) {
  }
}

std::chrono::nanoseconds Pacer::now() const {
  return Clock::now().time_since_epoch();
}

}  // namespace monitra::host
