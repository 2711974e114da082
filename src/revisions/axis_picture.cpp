#include "revisions/axis_picture.h"

#include <array>
#include <utility>

#include "timing/derived.h"
#include "timing/numbers.h"

namespace monitra::revisions {

namespace {

constexpr FieldIndex verFo = fieldOf(store::verFoRecord);

/// The number that the derived values are computed from.
std::optional<double> numberOf(const Fields& fields, FieldIndex field) {
  if (fields.texts[field]) return timing::Ertek(*fields.texts[field]);
  if (fields.numbers[field]) return *fields.numbers[field];
  return std::nullopt;
}

}  // namespace

std::optional<AxisPicture> pictureOf(const Fields& fields, int axis,
                                     std::optional<timing::Edition> edition) {
  constexpr FieldIndex axes = 3;
  std::array<double, 4> times{};
  for (FieldIndex group = 0; group < times.size(); ++group) {
    const auto number = numberOf(fields, group * axes + static_cast<FieldIndex>(axis));
    if (!number) return std::nullopt;
    times[group] = *number;
  }
  if (!edition && fields.texts[verFo]) edition = timing::editionOf(*fields.texts[verFo]);
  if (!edition) return std::nullopt;
  const auto [tf, t1, t2, t3] = times;
  return AxisPicture{{tf, t1, t2, t3},
                     *edition,
                     timing::peakRate(edition->base, tf, !edition->tarso),
                     timing::currentLimitRate(edition->base, t1)};
}

std::string speedLines(const AxisPicture& picture, double mmPerStep) {
  return "Túlhajtás jelzés: " + timing::speedText(picture.peakRate, mmPerStep) +
         "\nÁram határolás: " + timing::speedText(picture.limitRate, mmPerStep);
}

std::string curveText(const AxisPicture& picture) {
  constexpr double milliseconds = 1000;
  const timing::AxisTimes& times = picture.times;
  std::string text;
  for (const auto& [name, units] : {std::pair{"TF ", times.tf}, std::pair{" · T1 ", times.t1},
                                    std::pair{" · T2 ", times.t2}, std::pair{" · T3 ", times.t3}}) {
    text += name + timing::figuresText(units * picture.edition.base * milliseconds);
  }
  return text + " ms";
}

}  // namespace monitra::revisions
