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
    for (int i = 0; i < 12; ++i) values[i] = setup.FolLe[i].Value;
  }

  /// A failure tells what has been done, too.
  void check(bool right, const std::string& what) const {
    if (!right) throw std::runtime_error(told + "WRONG: " + what);
  }

  /// Opens a file with these bytes, of the kind that its name tells.
  void open(const std::string& name, const std::string& bytes) {
    told += name + ": " + bytes + "\n";
    lap.openDropped(scratch.write(name, bytes));
    const bool cutShort = lap.Esemeny.Caption.get().starts_with("A fájl hiányos");
    stale = cutShort || (stale && name.ends_with(".hex"));
    cleared = !cutShort;
    opened = true;
  }

  /// Saves, and opens the file in another program if it can hold the texts.
  void save() {
    dialog.path = scratch.path("saved.pwm");
    lap.MFSetMent.click();
    cleared = true;
    const auto [texts, failure] = store::pwmTexts(setup, lap.kozos);
    bool fits = failure == platform::Failure::None;
    for (std::size_t n = 2; n < texts.size(); ++n)
      fits = fits && texts[n].find(',') == std::string::npos;
    if (!fits || (setup.Funkcio.ListIndex == 5 && Ertek(lap.kozos.VerFo) <= 2)) return;
    SetupWorld other;
    other.open("a.pwm", scratch.read("saved.pwm"));
    const auto again = store::pwmTexts(other.setup, other.lap.kozos).records;
    check(other.setup.spinValues() == setup.spinValues() && lap.marks.savedMark().empty() &&
              std::equal(texts.begin() + 15, texts.end(), again.begin() + 15),
          "what is saved opens equal");
  }

  void checkSetup() {
    bool changed = false;
    for (int i = 0; i < 12; ++i) {
      const std::string& text = setup.box(i).Text;
      const int value = setup.FolLe[i].Value, before = std::exchange(values[i], value);
      const bool spelt = text == std::to_string(value) || value == before || opened;
      check(value > 0 && value < 256 && timing::wholeNumber(Ertek(text)) == value && spelt,
            "field " + std::to_string(i) + " is " + std::to_string(value) + ", shows " + text);
      changed = changed || value != before;
    }
    if (!std::exchange(opened, false) && changed) stale = false;
    modified = !std::exchange(cleared, false) && (modified || changed);
    check(lap.kozos.Modositott == (modified ? -1 : 0), "Modositott");
    for (int axis = 0; axis < 3 && !stale; ++axis) checkDerived(axis);
    check(setup.MBKVilor.Checked != tarso() && setup.Letolt.Enabled == tarso() &&
              setup.Bar.Value == 0 &&
              (tarso() || (lap.kozos.Alapido == 0.0001 && setup.Funkcio.ListIndex < 5)),
          "edition");
    const double path = Ertek(setup.Ut.Text.get()), limit = Ertek(setup.Tures.Text.get());
    const double perStep = Ertek(setup.Spm.Text.get());
    check(path >= 1 && path <= 65535 && setup.Utfolle.Value == timing::wholeNumber(path), "path");
    check(limit >= 0 && limit <= 255 && setup.Turesfolle.Value == timing::wholeNumber(limit),
          "limit");
    check(perStep <= 3 && setup.Uthossz.Caption.get() == timing::Levag(path * perStep, 5),
          "length");
  }
  void checkDerived(int axis) {
    const auto number = [&](int group) { return Ertek(setup.box(3 * group + axis).Text.get()); };
    const double base = lap.kozos.Alapido, period = number(3) + number(2);
    controls::Label* const holding[] = {&setup.Xttarto, &setup.Yttarto, &setup.Zttarto};
    const std::string right = timing::holdingCaption(timing::holdingFrequency(base, period),
                                                     timing::holdingDuty(number(3), period)) +
                              timing::rateCaption(timing::peakRate(base, number(0), !tarso())) +
                              timing::rateCaption(timing::currentLimitRate(base, number(1)));
    check(holding[axis]->Caption.get() + setup.Csucsf[axis].Caption.get() +
                  setup.Nhatar[axis].Caption.get() ==
              right,
          "captions, not " + right);
  }
  bool tarso() const { return setup.MBKTarso.Checked; }

  timing::SetupPanel& setup = lap.setup;
  std::map<int, int> values;  ///< of the spins
  bool stale = false;         ///< a file that was cut short has left captions of other texts
  bool cleared = false, opened = false, modified = false;
  std::string told;
};

}  // namespace monitra::fuzz
