#pragma once

#include <QObject>
#include <chrono>

#include "controls/controls.h"

namespace monitra::widgets {

/// When a periodic timer is due. Its ticks stand on a grid of whole intervals from the start, so
/// that the mean rate is the nominal one. After a late tick those behind it come faster until they
/// are back on the grid, but never closer than two thirds of an interval, for a motor to follow.
/// What is behind by more than 50 ms and an interval is given up: the grid then starts anew.
class TickSchedule {
 public:
  using Duration = std::chrono::nanoseconds;

  /// The interval is above 0.
  TickSchedule(Duration start, Duration interval)
      : interval_(interval), grid_(start + interval), due_(grid_) {}

  Duration due() const { return due_; }

  /// A tick has come at this time, which is not before it was due.
  void ticked(Duration now);

 private:
  Duration interval_;
  Duration grid_;  ///< where the next tick stands if none is late
  Duration due_;
};

/// Ticks a timer control from the event loop, by the kernel's clock and not by the toolkit's
/// timers, which count in whole milliseconds and fall behind at such intervals.
/// The control must outlive it.
class TickTimer : public QObject {
 public:
  explicit TickTimer(controls::Timer& control, QObject* parent = nullptr);
  TickTimer(const TickTimer&) = delete;
  TickTimer& operator=(const TickTimer&) = delete;
  ~TickTimer() override;

 private:
  bool runs() const;
  void restart();
  void tick();
  /// A due time of 0 never comes.
  void arm(TickSchedule::Duration due) const;

  controls::Timer& control_;
  TickSchedule schedule_;
  int clock_;  ///< file descriptor that can be read once the time has come
};

}  // namespace monitra::widgets
