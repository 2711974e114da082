#include "desktop/tick_timer.h"

#include <QSocketNotifier>
#include <algorithm>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>

namespace monitra::desktop {

namespace {

TickSchedule::Duration now() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

}  // namespace

void TickSchedule::ticked(Duration now) {
  constexpr std::chrono::milliseconds worthCatchingUp{50};
  grid_ += interval_;
  if (now - grid_ > worthCatchingUp) grid_ = now + interval_;
  due_ = std::max(grid_, now + interval_ * 3 / 4);
}

TickTimer::TickTimer(controls::Timer& control, QObject* parent)
    : QObject(parent),
      control_(control),
      schedule_({}, std::chrono::milliseconds(1)),
      clock_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
  if (clock_ < 0) qFatal("timerfd_create failed");
  auto* const notifier = new QSocketNotifier(clock_, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { tick(); });
  control_.Enabled.observe([this] { restart(); });
  control_.Interval.observe([this] { restart(); });
  restart();
}

TickTimer::~TickTimer() {
  ::close(clock_);
}

void TickTimer::restart() {
  ++starts_;
  if (!control_.Enabled || control_.Interval <= 0) {
    arm({});
    return;
  }
  schedule_ = TickSchedule(now(), std::chrono::milliseconds(control_.Interval));
  arm(schedule_.due());
}

void TickTimer::tick() {
  std::uint64_t expirations = 0;
  // Nothing to read means that the timer was set anew behind the event.
  if (::read(clock_, &expirations, sizeof expirations) != sizeof expirations) return;
  const int starts = starts_;
  control_.tick();
  if (starts_ != starts) return;
  schedule_.ticked(now());
  arm(schedule_.due());
}

void TickTimer::arm(TickSchedule::Duration due) const {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(due);
  itimerspec time{};
  time.it_value.tv_sec = seconds.count();
  time.it_value.tv_nsec = (due - seconds).count();
  ::timerfd_settime(clock_, TFD_TIMER_ABSTIME, &time, nullptr);
}

}  // namespace monitra::desktop
