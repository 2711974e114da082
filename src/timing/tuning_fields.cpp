#include "timing/tuning_fields.h"

#include "timing/numbers.h"

namespace monitra::timing {

TuningFields::TuningFields(SetupPanel& panel) : panel_(panel) {
  panel_.Ut.Text.handle([this] { Ut_Change(); });
  panel_.Utfolle.Value.handle([this] { Utfolle_Change(); });
  panel_.Spm.Text.handle([this] { Spm_Change(); });
  panel_.Tures.Text.handle([this] { Tures_Change(); });
  panel_.Turesfolle.Value.handle([this] { Turesfolle_Change(); });
}

void TuningFields::Ut_Change() {
  if (Ertek(panel_.Ut.Text.get()) > 65535) panel_.Ut.Text = "65535";
  if (Ertek(panel_.Ut.Text.get()) < 1) panel_.Ut.Text = "1";
  panel_.Utfolle.Value = wholeNumber(Ertek(panel_.Ut.Text.get()));
  showUthossz();
}

void TuningFields::Utfolle_Change() {
  panel_.Ut.Text = Levag(panel_.Utfolle.Value, 5);
}

void TuningFields::Spm_Change() {
  if (Ertek(panel_.Spm.Text.get()) < 0) panel_.Spm.Text = "0";
  if (Ertek(panel_.Spm.Text.get()) > 3) panel_.Spm.Text = "3";
  showUthossz();
}

void TuningFields::Tures_Change() {
  if (Ertek(panel_.Tures.Text.get()) > 255) panel_.Tures.Text = "255";
  if (Ertek(panel_.Tures.Text.get()) < 0) panel_.Tures.Text = "0";
  panel_.Turesfolle.Value = wholeNumber(Ertek(panel_.Tures.Text.get()));
}

void TuningFields::Turesfolle_Change() {
  panel_.Tures.Text = Levag(panel_.Turesfolle.Value, 3);
}

void TuningFields::showUthossz() {
  panel_.Uthossz.Caption = Levag(Ertek(panel_.Ut.Text.get()) * Ertek(panel_.Spm.Text.get()), 5);
}

}  // namespace monitra::timing
