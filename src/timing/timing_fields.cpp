#include "timing/timing_fields.h"

#include <array>

#include "timing/derived.h"
#include "timing/numbers.h"

namespace monitra::timing {

TimingFields::TimingFields(Kozos& kozos, SetupPanel& panel) : kozos_(kozos), panel_(panel) {
  for (int i = 0; i < timingFields; ++i) {
    panel_.FolLe[i].Value.handle([this, i] { FolLe_Change(i); });
  }
  for (int i = T2X; i <= T2Z; ++i) {
    panel_.T2[i].Text.handle([this, i] { T2_Change(i); });
  }
}

void TimingFields::FolLe_Change(int Index) {
  kozos_.Modositott = -1;
  panel_.box(Index).Text = decimalText(panel_.FolLe[Index].Value);
  MindFrissit();
}

void TimingFields::T2_Change(int /*Index*/) {
  TartoKiir();
}

void TimingFields::TartoFrissit() {
  for (int k = 1; k <= 3; ++k) {
    kozos_.Tartoperiod[k] = number(T3X + k - 1) + number(T2X + k - 1);
  }
  TartoKiir();
}

void TimingFields::TartoKiir() {
  const std::array<controls::Label*, 3> labels{&panel_.Xttarto, &panel_.Yttarto, &panel_.Zttarto};
  for (int k = 1; k <= 3; ++k) {
    const double period = kozos_.Tartoperiod[k];
    labels[static_cast<std::size_t>(k - 1)]->Caption = holdingCaption(
        holdingFrequency(kozos_.Alapido, period), holdingDuty(number(T3X + k - 1), period));
  }
}

void TimingFields::CsucsFrissit() {
  computeCsucs();
  showCsucs();
}

void TimingFields::computeCsucs() {
  for (int k = 1; k <= 3; ++k) {
    kozos_.Csucs[k] = peakRate(kozos_.Alapido, number(TFX + k - 1), panel_.MBKVilor.Checked);
  }
}

void TimingFields::showCsucs() {
  for (int k = 1; k <= 3; ++k) panel_.Csucsf[k - 1].Caption = rateCaption(kozos_.Csucs[k]);
}

void TimingFields::KorlatFrissit() {
  for (int k = 1; k <= 3; ++k) {
    kozos_.Korlat[k] = currentLimitRate(kozos_.Alapido, number(T1X + k - 1));
    panel_.Nhatar[k - 1].Caption = rateCaption(kozos_.Korlat[k]);
  }
}

void TimingFields::MindFrissit() {
  TartoFrissit();
  CsucsFrissit();
  KorlatFrissit();
}

double TimingFields::number(int i) const {
  return Ertek(panel_.box(i).Text.get());
}

}  // namespace monitra::timing
