#pragma once

#include <string>

namespace monitra::timing {

/// What the timing fields mean, per axis. Arguments are the numbers of the text boxes in base
/// times and the base time in seconds; frequencies and rates are per second. A zero denominator
/// gives 0.

double holdingFrequency(double base, double period);

/// In percent.
double holdingDuty(double t3, double period);

/// In whole steps a step takes two of the half-step times that TF counts.
double peakRate(double base, double tf, bool wholeSteps);

double currentLimitRate(double base, double t1);

std::string holdingCaption(double frequency, double duty);
std::string rateCaption(double rate);

}  // namespace monitra::timing
