#include "timing/derived.h"

#include "timing/numbers.h"

namespace monitra::timing {

namespace {

double quotient(double numerator, double denominator) {
  return denominator == 0 ? 0 : numerator / denominator;
}

}  // namespace

double holdingFrequency(double base, double period) {
  return quotient(1, base * period);
}

double holdingDuty(double t3, double period) {
  return quotient(t3, period) * 100;
}

double peakRate(double base, double tf, bool wholeSteps) {
  return quotient(1, wholeSteps ? 2 * tf * base : tf * base);
}

double currentLimitRate(double base, double t1) {
  return quotient(1, t1 * base);
}

std::string holdingCaption(double frequency, double duty) {
  return Levag(frequency, 7) + " Hz (" + Levag(duty, 4) + "%)";
}

std::string rateCaption(double rate) {
  return Levag(rate, 7) + " S/s";
}

}  // namespace monitra::timing
