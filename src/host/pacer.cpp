#include "host/pacer.h"

#include <chrono>
#include <thread>

namespace monitra::host {

void Pacer::Sleep(int milliseconds) {
  using Clock = std::chrono::steady_clock;
  /// A sleep ends late by the kernel's timer slack, 50 µs for an ordinary thread, and the wake-up.
  constexpr std::chrono::microseconds spun{120};
  const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
  std::this_thread::sleep_until(deadline - spun);
  while (Clock::now() < deadline) {
  }
}

}  // namespace monitra::host
