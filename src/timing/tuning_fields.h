#pragma once

#include "timing/setup_panel.h"

namespace monitra::timing {

/// Ut, Tures and Spm: typed text is clamped, text and spin button follow each other.
/// Binds its handlers to the panel, which must outlive it.
class TuningFields {
 public:
  explicit TuningFields(SetupPanel& panel);

  void Ut_Change();
  void Utfolle_Change();
  void Spm_Change();
  void Tures_Change();
  void Turesfolle_Change();

  /// The tuning path in millimetres.
  void showUthossz();

 private:
  SetupPanel& panel_;
};

}  // namespace monitra::timing
