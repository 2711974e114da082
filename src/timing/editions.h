#pragma once

#include <string>

#include "platform/message_box.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"
#include "timing/timing_fields.h"

namespace monitra::timing {

inline constexpr double slowBase = 0.0001;
inline constexpr double fastBase = 3.3e-05;

/// A firmware edition, and the PWM base time in seconds that it counts in.
struct Edition {
  bool tarso;  ///< the second one
  double base;

  bool operator==(const Edition&) const = default;
};

/// What the first digit of a firmware's version decides.
Edition editionOf(const std::string& VerFo);

/// The two firmware editions. The check marks of MBKVilor and MBKTarso are the only state.
/// Binds its handlers to the panel; all arguments must outlive it.
class Editions {
 public:
  Editions(Kozos& kozos, SetupPanel& panel, TimingFields& fields, platform::MessageBox& box);

  void MBKVilor_Click();
  void MBKTarso_Click();
  void Funkcio_Click();

  /// Apply an edition's view under the present Alapido. Tartoperiod and Korlat stay.
  void VilorNezet();
  void TarsoNezet();

  /// Picks edition and Alapido from VerFo, after a file has set it.
  void KiadasValaszt();

  /// The same with a given edition, and the one in force.
  void choose(const Edition& edition);
  Edition present() const { return {panel_.MBKTarso.Checked, kozos_.Alapido}; }

 private:
  void view(bool tarso);
  void click(bool tarso);
  void enableVersion(bool enabled);

  /// Refuses Funkcio 5 outside the second edition, in a box of the two texts with the selected
  /// entry between them.
  void refuseTarsoFunkcio(const char* before, const char* after);

  Kozos& kozos_;
  SetupPanel& panel_;
  TimingFields& fields_;
  platform::MessageBox& box_;
};

}  // namespace monitra::timing
