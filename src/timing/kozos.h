#pragma once

#include <cstdint>
#include <string>

#include "controls/indexed_array.h"

namespace monitra::timing {

/// The state that the rooms share. It must outlive every panel's handlers.
struct Kozos {
  /// Firmware version, digits 1 to 3, each the text of a number.
  std::string VerFo;
  std::string VerAl;
  std::string VerRev;

  std::int16_t Modositott = 0;  ///< -1: a timing field has changed since the Setup was saved
  double Alapido = 0;           ///< PWM base time in seconds, 0.0001 or 3.3e-05
  std::string FirmwareNev;      ///< file title of the open firmware file; empty: none is open
  std::string FirmwareUtvonal;  ///< its full path
  std::string FirmwareCel;      ///< file title of the last patched copy

  /// Derived values of the axes X, Y, Z, as of their last computation.
  controls::IndexedArray<double, 1, 3> Tartoperiod;  ///< holding period in base times
  controls::IndexedArray<double, 1, 3> Csucs;        ///< peak step rate, steps per second
  controls::IndexedArray<double, 1, 3> Korlat;       ///< current-limit point, steps per second
};

}  // namespace monitra::timing
