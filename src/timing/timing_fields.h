#pragma once

#include "timing/kozos.h"
#include "timing/setup_panel.h"

namespace monitra::timing {

/// The twelve timing fields and the values derived from them. The derived values are computed
/// from the texts of the boxes and only when one of these operations runs.
/// Binds its handlers to the panel; both arguments must outlive it.
class TimingFields {
 public:
  TimingFields(Kozos& kozos, SetupPanel& panel);

  void FolLe_Change(int Index);
  void T2_Change(int Index);

  void TartoFrissit();
  void TartoKiir();
  void CsucsFrissit();
  void KorlatFrissit();
  void MindFrissit();

  /// The two halves of CsucsFrissit: the edition that is checked decides how TF counts.
  void computeCsucs();
  void showCsucs();

 private:
  double number(int i) const;

  Kozos& kozos_;
  SetupPanel& panel_;
};

}  // namespace monitra::timing
