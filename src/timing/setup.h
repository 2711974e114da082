#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace monitra::timing {

/// Index of a timing field: group (TF, T1, T2, T3) times 3 plus axis (X, Y, Z).
enum TimingField : int { TFX, TFY, TFZ, T1X, T1Y, T1Z, T2X, T2Y, T2Z, T3X, T3Y, T3Z };
inline constexpr int timingFields = 12;

inline constexpr std::array<std::string_view, timingFields> timingFieldNames{
    "TFX", "TFY", "TFZ", "T1X", "T1Y", "T1Z", "T2X", "T2Y", "T2Z", "T3X", "T3Y", "T3Z"};

/// The modes that the field Funkcio chooses among.
inline constexpr std::array<std::string_view, 6> funkcioEntries{
    "Kikapcsolva (ONLINE)", "Fázis, végállás, gomb teszt", "Számláló diagnosztika",
    "Motor tuning",         "Tartóági PWM tuning",         "Forszírozott Impulzus figyelés!"};

/// The Setup as the controller takes it, each field in its range.
struct Setup {
  std::array<std::uint8_t, timingFields> timing{};  ///< 1 to 255 base times, by TimingField
  std::uint8_t Funkcio = 0;                         ///< 0 to 5
  std::uint16_t Ut = 1;                             ///< 1 to 65535 steps
  std::uint8_t Tures = 0;                           ///< 0 to 255 steps per measurement
  bool Xegesz = false;                              ///< whole-step mode of each axis
  bool Yegesz = false;
  bool Zegesz = false;

  bool operator==(const Setup&) const = default;
};

}  // namespace monitra::timing
