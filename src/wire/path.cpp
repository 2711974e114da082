#include "wire/path.h"

namespace monitra::wire {

void Path::add(Point point) {
  if (points_.size() == 1 || ++skipped_ >= every_) {
    points_.push_back(point);
    skipped_ = 0;
  } else {
    points_.back() = point;
  }
  if (points_.size() <= mostPoints) return;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < points_.size(); i += 2) points_[kept++] = points_[i];
  points_.resize(kept);
  points_.back() = point;
  every_ *= 2;
}

}  // namespace monitra::wire
