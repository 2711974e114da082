#pragma once

#include <optional>
#include <string>

#include "revisions/fields.h"
#include "timing/current_curve.h"

namespace monitra::revisions {

/// What the times of one axis come to.
struct AxisPicture {
  timing::AxisTimes times;
  timing::Edition edition;
  double peakRate = 0;   ///< steps per second without loss of steps
  double limitRate = 0;  ///< steps per second at which current limiting starts

  bool operator==(const AxisPicture&) const = default;
};

/// Of an axis, 0 to 2, under this edition, or else under the one that the version's first digit
/// brings. None where the fields don't hold it all.
std::optional<AxisPicture> pictureOf(const Fields& fields, int axis,
                                     std::optional<timing::Edition> edition = std::nullopt);

/// Both rates of an axis, each in a line with its name, and what they are in millimetres.
std::string speedLines(const AxisPicture& picture, double mmPerStep);

/// The curve in words: "TF 3 · T1 8,05 · T2 0,792 · T3 0,792 ms".
std::string curveText(const AxisPicture& picture);

}  // namespace monitra::revisions
