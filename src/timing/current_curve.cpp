#include "timing/current_curve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace monitra::timing {

namespace {

constexpr double rest = 0;
constexpr double half = 0.5;
constexpr double peak = 1;

}  // namespace

std::vector<CurvePoint> currentCurve(const AxisTimes& times, const Edition& edition, double until) {
  std::vector<CurvePoint> points{{0, rest}};
  double units = 0;
  const auto keep = [&](double level, double length) {
    points.push_back({units * edition.base, level});
    units += length;
    points.push_back({units * edition.base, level});
  };
  keep(edition.tarso ? peak : half, times.tf);
  keep(peak, times.t1);
  const double period = times.t2 + times.t3;
  while (units * edition.base < until && period > 0) {
    keep(rest, times.t2);
    keep(peak, times.t3);
  }
  points.push_back({units * edition.base, rest});
  return points;
}

double curveLength(const AxisTimes& times, const Edition& edition) {
  return (times.tf + times.t1 + 2 * (times.t2 + times.t3)) * edition.base;
}

std::string figuresText(double number) {
  constexpr int figures = 3;
  constexpr int mostDecimals = 9;
  const int whole = number > 0 ? static_cast<int>(std::floor(std::log10(number))) + 1 : figures;
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", std::clamp(figures - whole, 0, mostDecimals),
                number);
  std::string told = text.data();
  if (told.find('.') == std::string::npos) return told;
  told.erase(told.find_last_not_of('0') + 1);
  if (told.back() == '.') told.pop_back();
  std::ranges::replace(told, '.', ',');
  return told;
}

std::string speedText(double rate, double mmPerStep) {
  constexpr double secondsPerMinute = 60;
  std::string text = figuresText(rate) + " S/s";
  if (mmPerStep <= 0) return text;
  text += " = " + figuresText(rate * mmPerStep) + " mm/s";
  return text + " = " + figuresText(rate * mmPerStep * secondsPerMinute) + " mm/perc";
}

}  // namespace monitra::timing
