#pragma once

#include <algorithm>
#include <cmath>

#include "wire/levels.h"

namespace monitra::signals {

inline double seconds(wire::Time time) {
  return static_cast<double>(time.count()) * 1e-9;
}

/// Which part of a recording is shown, and where in the picture a moment stands.
class TimeScale {
 public:
  static constexpr wire::Time leastSpan = std::chrono::microseconds(10);

  /// The picture's width in pixels, at least one.
  void setWidth(int width) { width_ = std::max(width, 1); }
  int width() const { return width_; }

  wire::Time from() const { return from_; }
  wire::Time span() const { return span_; }
  wire::Time to() const { return from_ + span_; }

  double x(wire::Time time) const {
    return static_cast<double>((time - from_).count()) * width_ /
           static_cast<double>(span_.count());
  }
  wire::Time at(double x) const {
    return from_ + wire::Time(std::llround(x / width_ * static_cast<double>(span_.count())));
  }

  /// A part of the recording from start to end, or as near to it as the bounds allow: not much
  /// more than all of it, and never past it.
  void show(wire::Time from, wire::Time span, wire::Time start, wire::Time end) {
    const wire::Time most =
        std::max((end - start) * 5 / 4, wire::Time(std::chrono::milliseconds(1)));
    span_ = std::clamp(span, leastSpan, most);
    const wire::Time first = start - span_ / 10;
    from_ = std::clamp(from, first, std::max(first, end - span_ * 9 / 10));
  }

  /// Above 1 is closer; what stands at x stays there.
  void zoom(double factor, double x, wire::Time start, wire::Time end) {
    const wire::Time fixed = at(x);
    const double span = std::min(static_cast<double>(span_.count()) / factor,
                                 2.0 * static_cast<double>((end - start).count()) + 1e7);
    const wire::Time wanted = std::max(wire::Time(std::llround(span)), leastSpan);
    const auto left = static_cast<double>(wanted.count()) * x / width_;
    show(fixed - wire::Time(std::llround(left)), wanted, start, end);
  }

 private:
  int width_ = 1;
  wire::Time from_{};
  wire::Time span_ = std::chrono::seconds(2);
};

}  // namespace monitra::signals
