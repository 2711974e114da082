#pragma once

#include <stdexcept>

#include "store/pwm_format.h"
#include "support/program.h"
#include "timing/derived.h"
#include "timing/numbers.h"

namespace monitra::fuzz {

using namespace support;
using timing::Ertek;

/// The started program, and what must hold of its Setup whatever has happened.
struct SetupWorld : Program {
  SetupWorld() {
    lap.Form_Load();
    for (int i = 0; i < 12; ++i) fields[i] = {setup.FolLe[i].Value, setup.box(i).Text};
  }

  /// A failure tells what has been done, too.
  void check(bool right, const std::string& what) const {
    if (!right) throw std::runtime_error(told + "WRONG: " + what);
  }

  /// Opens a file with these bytes, of the kind that its name tells.
  void open(const std::string& name, const std::string& bytes) {
    told += name + ": " + bytes + "\n";
    lap.openDropped(scratch.write(name, bytes));
    cleared = !lap.Esemeny.Caption.get().starts_with("A fájl hiányos");
    opened = true;
    // One that is cut short leaves captions of other texts, until all are computed anew.
    if (!cleared) setup.MBKTarso.click();
  }

  /// Saves, and opens the file in another program if it can hold the texts.
  void save() {
    dialog.path = scratch.path("saved.pwm");
    lap.MFSetMent.click();
    cleared = true;
    const auto [texts, failure] = store::pwmTexts(setup, lap.kozos);
    bool fits = setup.Funkcio.ListIndex < 5 || Ertek(lap.kozos.VerFo) > 2;
    for (const int n : {13, 14, 15}) fits = fits && texts[n].find(',') == std::string::npos;
    if (!fits || failure != platform::Failure::None) return;
    SetupWorld other;
    other.open("a.pwm", scratch.read("saved.pwm"));
    const auto again = store::pwmTexts(other.setup, other.lap.kozos).records;
    check(other.setup.spinValues() == setup.spinValues() &&
              std::equal(texts.begin() + 15, texts.end(), again.begin() + 15),
          "what is saved opens equal");
  }

  void checkSetup() {
    const auto number = [](auto& field) { return Ertek(field.Text.get()); };
    for (int i = 0; i < 12; ++i) {
      const std::string& text = setup.box(i).Text;
      const int value = setup.FolLe[i].Value;
      const auto [before, spelt] = std::exchange(fields[i], {value, text});
      check(value > 0 && value < 256 && timing::wholeNumber(Ertek(text)) == value &&
                (text == std::to_string(value) || value == before || opened),
            "field " + std::to_string(i) + " is " + std::to_string(value) + ", shows " + text);
      modified = modified || value != before || (!opened && text != spelt);
    }
    opened = false;
    if (std::exchange(cleared, false)) modified = false;
    check(lap.kozos.Modositott == (modified ? -1 : 0), "Modositott");
    const controls::Label* const holding[] = {&setup.Xttarto, &setup.Yttarto, &setup.Zttarto};
    const bool tarso = setup.MBKTarso.Checked;
    for (int k = 0; k < 3; ++k) {
      using namespace timing;
      const double base = lap.kozos.Alapido, t3 = number(setup.T3[9 + k]);
      const double period = t3 + number(setup.T2[6 + k]);
      check(holding[k]->Caption.get() ==
                    holdingCaption(holdingFrequency(base, period), holdingDuty(t3, period)) &&
                setup.Csucsf[k].Caption.get() ==
                    rateCaption(peakRate(base, number(setup.TF[k]), !tarso)) &&
                setup.Nhatar[k].Caption.get() ==
                    rateCaption(currentLimitRate(base, number(setup.T1[3 + k]))),
            "captions of axis " + std::to_string(k));
    }
    check(setup.MBKVilor.Checked != tarso && setup.Letolt.Enabled == tarso &&
              (tarso || (lap.kozos.Alapido == 0.0001 && setup.Funkcio.ListIndex < 5)),
          "edition");
    check(setup.Utfolle.Value == timing::wholeNumber(number(setup.Ut)) &&
              setup.Turesfolle.Value == timing::wholeNumber(number(setup.Tures)) &&
              setup.Uthossz.Caption.get() == timing::Levag(number(setup.Ut) * number(setup.Spm), 5),
          "tuning fields");
  }

  timing::SetupPanel& setup = lap.setup;
  std::map<int, std::pair<int, std::string>> fields;  ///< spins and texts
  bool cleared = false, opened = false, modified = false;
  std::string told;
};

}  // namespace monitra::fuzz
