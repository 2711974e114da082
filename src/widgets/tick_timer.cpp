#include "widgets/tick_timer.h"

#include <QSocketNotifier>
#include <algorithm>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>

#include "widgets/bindings.h"

namespace monitra::widgets {

namespace {

TickSchedule::Duration now() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

}  // namespace

void TickSchedule::ticked(Duration now) {
  constexpr std::chrono::milliseconds worthCatchingUp{50};
  grid_ += interval_;
  if (now - grid_ > worthCatchingUp) grid_ = now + interval_;
  due_ = std::max(grid_, now + interval_ * 2 / 3);
}

TickTimer::TickTimer(controls::Timer& control, QObject* parent)
    : QObject(parent),
      control_(control),
      schedule_({}, std::chrono::milliseconds(1)),
      clock_(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {
  if (clock_ < 0) qFatal("timerfd_create failed");
  auto* const notifier = new QSocketNotifier(clock_, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] { tick(); });
  keep(this, control_.Enabled.observe([this] { restart(); }));
  keep(this, control_.Interval.observe([this] { restart(); }));
  restart();
}

TickTimer::~TickTimer() {
  ::close(clock_);
}

bool TickTimer::runs() const {
  return control_.Enabled && control_.Interval > 0;
}

void TickTimer::restart() {
  if (!runs()) {
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
  control_.tick();
  const TickSchedule::Duration after = now();
  // The tick itself may have stopped the timer or set it anew.
  if (!runs() || after < schedule_.due()) return;
  schedule_.ticked(after);
  arm(schedule_.due());
}

void TickTimer::arm(TickSchedule::Duration due) const {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(due);
  itimerspec time{};
  time.it_value.tv_sec = seconds.count();
  time.it_value.tv_nsec = (due - seconds).count();
  ::timerfd_settime(clock_, TFD_TIMER_ABSTIME, &time, nullptr);
}

}  // namespace monitra::widgets
