#pragma once

#include <string>
#include <vector>

#include "timing/editions.h"

namespace monitra::timing {

/// The times of one axis, as numbers of base times.
struct AxisTimes {
  double tf = 0;
  double t1 = 0;
  double t2 = 0;
  double t3 = 0;

  bool operator==(const AxisTimes&) const = default;
};

/// A corner of the curve: seconds from the step's begin, and the part of the peak current.
struct CurvePoint {
  double time;
  double level;

  bool operator==(const CurvePoint&) const = default;
};

/// The motor current after a step to scale, as the diagram of the window has it: TF, T1, then T2
/// and T3 by turns, until this many seconds have passed. In whole steps the current waits at the
/// half of its peak for the length of TF.
std::vector<CurvePoint> currentCurve(const AxisTimes& times, const Edition& edition, double until);

/// The seconds from a step's begin to the end of its second holding pulse.
double curveLength(const AxisTimes& times, const Edition& edition);

/// A number that isn't negative, rounded to three figures, but never a whole number: "4,16".
std::string figuresText(double number);

/// A rate in steps per second, and with a way per step in millimetres above 0 what it means on the
/// machine: "333 S/s = 4,16 mm/s = 250 mm/perc". Rounded to three figures, but never a whole
/// number.
std::string speedText(double rate, double mmPerStep);

}  // namespace monitra::timing
