#include "timing/editions.h"

#include "timing/numbers.h"

namespace monitra::timing {

Editions::Editions(Kozos& kozos, SetupPanel& panel, TimingFields& fields, platform::MessageBox& box)
    : kozos_(kozos), panel_(panel), fields_(fields), box_(box) {
  panel_.MBKVilor.Click.handle([this] { MBKVilor_Click(); });
  panel_.MBKTarso.Click.handle([this] { MBKTarso_Click(); });
  panel_.Funkcio.ListIndex.handle([this] { Funkcio_Click(); });
}

void Editions::MBKVilor_Click() {
  click(false);
}

void Editions::MBKTarso_Click() {
  click(true);
}

void Editions::click(bool tarso) {
  kozos_.Alapido = tarso ? fastBase : slowBase;
  panel_.Verz.Caption = "V?.?.?";
  tarso ? TarsoNezet() : VilorNezet();
  fields_.MindFrissit();
  enableVersion(!tarso);
}

void Editions::VilorNezet() {
  view(false);
  refuseTarsoFunkcio("Tíltott funkció (", "), csak a Tarso Firmware-ben létezik!");
}

void Editions::TarsoNezet() {
  view(true);
}

void Editions::view(bool tarso) {
  panel_.LineVilor1.Visible = !tarso;
  panel_.LineVilor2.Visible = !tarso;
  panel_.LineVilor3.Visible = !tarso;
  panel_.LineTarso1.Visible = tarso;
  panel_.LineTarso2.Visible = tarso;
  panel_.MBKVilor.Checked = !tarso;
  panel_.MBKTarso.Checked = tarso;
  panel_.lepes.Caption = tarso ? " Tarso Firmware: fél lépés " : " Vilor Firmware: egészlépés ";
  fields_.computeCsucs();
  panel_.Cim.Caption = (tarso ? "Gerjesztés: Natív PWM (" : "Gerjesztés: Hibrid PWM (") +
                       Levag(1 / kozos_.Alapido / 1000, 5) + " kHz)";
  panel_.Letolt.Enabled = tarso;
  fields_.showCsucs();
}

Edition editionOf(const std::string& VerFo) {
  const double n = Ertek(VerFo);
  return {n > 2, n > 3 ? fastBase : slowBase};
}

void Editions::KiadasValaszt() {
  choose(editionOf(kozos_.VerFo));
}

void Editions::choose(const Edition& edition) {
  enableVersion(!edition.tarso);
  kozos_.Alapido = edition.base;
  edition.tarso ? TarsoNezet() : VilorNezet();
  fields_.MindFrissit();
}

void Editions::Funkcio_Click() {
  refuseTarsoFunkcio("Ez a funkció (", ") csak a Tarso Firmware-ben létezik!");
}

void Editions::refuseTarsoFunkcio(const char* before, const char* after) {
  constexpr int tarsoOnly = 5;
  if (panel_.Funkcio.ListIndex != tarsoOnly || panel_.MBKTarso.Checked) return;
  box_.MsgBox(before + panel_.Funkcio.text() + after + "\r\nFunkció törölve.",
              platform::box_style::exclamation | platform::box_style::okOnly);
  panel_.Funkcio.ListIndex = 0;
}

void Editions::enableVersion(bool enabled) {
  panel_.Label15.Enabled = enabled;
  panel_.Verz.Enabled = enabled;
}

}  // namespace monitra::timing
