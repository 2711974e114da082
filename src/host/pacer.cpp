#include "host/pacer.h"

#include <sched.h>
#include <thread>
#include <time.h>

namespace monitra::host {

using Clock = std::chrono::steady_clock;

void Pacer::Sleep(int milliseconds) {
  // A sleep ends late by the kernel's timer slack, 50 µs for an ordinary thread, and the wake-up,
  // which on a PC that saves power or is itself a guest takes some hundred more.
  constexpr std::chrono::microseconds spun{400};
  const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
  std::this_thread::sleep_until(deadline - spun);
  while (Clock::now() < deadline) {
  }
}

void Pacer::bePunctual(bool on) {
  if (refused_) return;
  // Whoever started the program in a class of its own has chosen already.
  if (on && ::sched_getscheduler(0) != SCHED_OTHER) refused_ = true;
  if (refused_) return;
  sched_param priority{};
  priority.sched_priority = on ? ::sched_get_priority_min(SCHED_FIFO) : 0;
  refused_ = ::sched_setscheduler(0, on ? SCHED_FIFO : SCHED_OTHER, &priority) != 0;
}

std::chrono::nanoseconds Pacer::now() const {
  timespec time{};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace monitra::host
