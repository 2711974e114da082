#pragma once

#include <cstddef>
#include <vector>

namespace monitra::wire {

/// The way of a machine in X and Y, in steps from where it stood at first. With a long way the
/// points get fewer, every other one at a time; the last one is always there.
class Path {
 public:
  struct Point {
    long x = 0;
    long y = 0;
    bool operator==(const Point&) const = default;
  };

  static constexpr std::size_t mostPoints = 4096;

  Path() { points_.reserve(mostPoints + 1); }

  void add(Point point);
  const std::vector<Point>& points() const { return points_; }

 private:
  std::vector<Point> points_{Point{}};
  long every_ = 1;    ///< steps between two points that stay
  long skipped_ = 0;  ///< since the last one that stays
};

}  // namespace monitra::wire
