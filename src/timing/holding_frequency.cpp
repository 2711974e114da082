#include "timing/holding_frequency.h"

#include <utility>

#include "timing/numbers.h"

namespace monitra::timing {

namespace {

constexpr int digits = 3;

/// The other field of T2 and T3 on the same axis.
int partnerOf(int Index) {
  return Index < T3X ? Index + 3 : Index - 3;
}

}  // namespace

HoldingFrequency::HoldingFrequency(const Kozos& kozos, SetupPanel& panel, TimingFields& fields,
                                   std::function<void()> Beep)
    : kozos_(kozos), panel_(panel), fields_(fields), Beep_(std::move(Beep)) {
  for (int i = 0; i < timingFields; ++i) {
    panel_.FolLe[i].SpinDown.handle([this, i] { FolLe_SpinDown(i); });
    panel_.FolLe[i].SpinUp.handle([this, i] { FolLe_SpinUp(i); });
  }
  panel_.MBTallando.Click.handle([this] { MBTallando_Click(); });
  panel_.MBTValtozo.Click.handle([this] { MBTValtozo_Click(); });
}

void HoldingFrequency::FolLe_SpinDown(int Index) {
  if (!couples(Index)) return;
  const int partner = partnerOf(Index);
  if (panel_.box(partner).Text.get() == "255") {
    Beep_();
  } else {
    setPartner(partner, partnerNumber(Index, +1));
  }
  if (panel_.box(Index).Text.get() == "1") Beep_();
}

void HoldingFrequency::FolLe_SpinUp(int Index) {
  if (!couples(Index)) return;
  const int partner = partnerOf(Index);
  if (panel_.box(partner).Text.get() == "1") {
    Beep_();
  } else {
    setPartner(partner, partnerNumber(Index, -1));
  }
  if (panel_.box(Index).Text.get() == "255") Beep_();
}

void HoldingFrequency::setPartner(int partner, double number) {
  controls::Property<std::string>& text = panel_.box(partner).Text;
  controls::BoundedProperty& value = panel_.FolLe[partner].Value;
  text = Levag(number, digits);
  const double shown = Ertek(text.get());
  value = wholeNumber(shown);
  // A file may have brought another spelling of the limit, from which the value doesn't move.
  if (shown < value.min() || shown > value.max()) fields_.FolLe_Change(partner);
}

void HoldingFrequency::MBTallando_Click() {
  panel_.MBTallando.Checked = true;
  panel_.MBTValtozo.Checked = false;
  fields_.TartoFrissit();
}

void HoldingFrequency::MBTValtozo_Click() {
  panel_.MBTallando.Checked = false;
  panel_.MBTValtozo.Checked = true;
}

bool HoldingFrequency::couples(int Index) const {
  return panel_.MBTallando.Checked && Index >= T2X && Index <= T3Z;
}

double HoldingFrequency::partnerNumber(int Index, int step) const {
  const int axis = Index % 3 + 1;
  return kozos_.Tartoperiod[axis] - panel_.FolLe[Index].Value + step;
}

}  // namespace monitra::timing
