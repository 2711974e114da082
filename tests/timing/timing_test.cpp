#include <array>
#include <gtest/gtest.h>

#include "support/journal.h"
#include "timing/editions.h"
#include "timing/holding_frequency.h"
#include "timing/numbers.h"
#include "timing/timing_fields.h"
#include "timing/tuning_fields.h"

namespace monitra::timing {
namespace {

/// The room with its handlers, as the window description has it, at the first edition's base time.
struct Timing : testing::Test {
  Timing() {
    kozos.Alapido = slowBase;
    fields.MindFrissit();
  }

  std::string captions(int axis) const {
    const controls::Label* const holding[] = {&panel.Xttarto, &panel.Yttarto, &panel.Zttarto};
    return holding[axis]->Caption.get() + ", " + panel.Csucsf[axis].Caption.get() + ", " +
           panel.Nhatar[axis].Caption.get();
  }

  support::Journal journal;
  support::JournalBoxes box{journal};
  Kozos kozos;
  SetupPanel panel;
  TimingFields fields{kozos, panel};
  Editions editions{kozos, panel, fields, box};
  HoldingFrequency coupling{kozos, panel, fields, [this] { journal.emplace_back("beep"); }};
  TuningFields tuning{panel};
};

TEST_F(Timing, DerivedCaptionsFollowTheFieldsInBothEditionsAndBases) {
  struct Case {
    bool vilor;
    double base;
    std::array<int, 4> fields;  ///< TF, T1, T2, T3 of all axes
    std::string shown;
  };
  for (const auto& c :
       {Case{true, slowBase, {91, 244, 24, 24}, "208.333 Hz (50%), 54.9450 S/s, 40.9836 S/s"},
        Case{false, fastBase, {91, 244, 24, 24}, "631.313 Hz (50%), 333.000 S/s, 124.192 S/s"},
        Case{true, slowBase, {1, 1, 1, 1}, "5000 Hz (50%), 5000 S/s, 10000 S/s"},
        Case{false, fastBase, {1, 1, 1, 1}, "15151.5 Hz (50%), 30303.0 S/s, 30303.0 S/s"},
        Case{false, slowBase, {1, 1, 255, 1}, "39.0625 Hz (.390%), 10000 S/s, 10000 S/s"},
        Case{true, slowBase, {255, 255, 255, 255}, "19.6078 Hz (50%), 19.6078 S/s, 39.2156 S/s"},
        Case{false, fastBase, {255, 255, 255, 255}, "59.4177 Hz (50%), 118.835 S/s, 118.835 S/s"},
        Case{true, slowBase, {91, 244, 1, 255}, "39.0625 Hz (99.6%), 54.9450 S/s, 40.9836 S/s"},
        Case{true, slowBase, {91, 244, 199, 1}, "50 Hz (.5%), 54.9450 S/s, 40.9836 S/s"}}) {
    kozos.Alapido = c.base;
    panel.MBKVilor.Checked = c.vilor;
    for (int i = 0; i < timingFields; ++i) {
      panel.FolLe[i].Value = c.fields[static_cast<std::size_t>(i / 3)];
    }
    fields.MindFrissit();
    for (int axis = 0; axis < 3; ++axis) EXPECT_EQ(captions(axis), c.shown);
  }
}

TEST_F(Timing, EveryArrowMovesItsOwnBoxAndItsOwnAxis) {
  std::vector<std::string> texts{"91", "91", "91", "244", "244", "244",
                                 "24", "24", "24", "24",  "24",  "24"};
  panel.MBTValtozo.click();
  for (int i = 0; i < timingFields; ++i) {
    const std::string before[] = {captions(0), captions(1), captions(2)};
    kozos.Modositott = 0;
    panel.FolLe[i].pressUp();
    EXPECT_EQ(kozos.Modositott, -1);
    std::string& moved = texts[static_cast<std::size_t>(i)];
    moved = std::to_string(std::stoi(moved) + 1);
    for (int n = 0; n < timingFields; ++n) {
      EXPECT_EQ(panel.box(n).Text.get(), texts[static_cast<std::size_t>(n)]);
    }
    for (int axis = 0; axis < 3; ++axis)
      EXPECT_EQ(captions(axis) != before[axis], axis == i % 3) << i;
  }
  kozos.Modositott = 0;
  panel.FolLe[T1Y].Value = 245;
  EXPECT_EQ(kozos.Modositott, 0) << "the present value";
  panel.FolLe[T1Y].Value = 255;
  kozos.Modositott = 0;
  panel.FolLe[T1Y].pressUp();
  EXPECT_EQ(kozos.Modositott, 0) << "at the limit";
}

TEST_F(Timing, APressOnT2OrT3MovesItsPartnerAndBeepsAtALimit) {
  // Each row: an axis's T2 and T3, the arrow, then both, their sum, the label and the beeps.
  const std::vector<std::string> rows{
      "24 24 T2-|23 25 48 208.333 Hz (52.0%) ",     "24 24 T2+|25 23 48 208.333 Hz (47.9%) ",
      "24 24 T3-|25 23 48 208.333 Hz (47.9%) ",     "24 24 T3+|23 25 48 208.333 Hz (52.0%) ",
      "24 255 T2-|23 255 278 35.9712 Hz (91.7%) !", "24 1 T2+|25 1 26 384.615 Hz (3.84%) !",
      "255 24 T3-|255 23 278 35.9712 Hz (8.27%) !", "1 24 T3+|1 25 26 384.615 Hz (96.1%) !",
      "1 24 T2-|1 25 26 384.615 Hz (96.1%) !",      "255 24 T2+|255 23 278 35.9712 Hz (8.27%) !",
      "24 1 T3-|25 1 26 384.615 Hz (3.84%) !",      "24 255 T3+|23 255 278 35.9712 Hz (91.7%) !",
      "1 255 T2-|1 255 256 39.0625 Hz (99.6%) !!",  "255 1 T2+|255 1 256 39.0625 Hz (.390%) !!",
      "255 1 T3-|255 1 256 39.0625 Hz (.390%) !!",  "1 255 T3+|1 255 256 39.0625 Hz (99.6%) !!",
      "2 254 T2-|1 255 256 39.0625 Hz (99.6%) ",    "2 254 T3+|1 255 256 39.0625 Hz (99.6%) "};
  const controls::Label* const labels[] = {&panel.Xttarto, &panel.Yttarto, &panel.Zttarto};
  for (int axis = 0; axis < 3; ++axis) {
    for (const std::string& row : rows) {
      int t2 = 0, t3 = 0, group = 0;
      char arrow = 0;
      ASSERT_EQ(std::sscanf(row.c_str(), "%d %d T%d%c", &t2, &t3, &group, &arrow), 4);
      panel.FolLe[T2X + axis].Value = t2;
      panel.FolLe[T3X + axis].Value = t3;
      kozos.Modositott = 0;
      journal.clear();
      auto& spin = panel.FolLe[3 * group + axis];
      arrow == '+' ? spin.pressUp() : spin.pressDown();
      for (const int i : {T2X + axis, T3X + axis}) {
        EXPECT_EQ(panel.box(i).Text.get(), decimalText(panel.FolLe[i].Value));
      }
      const std::string seen = panel.box(T2X + axis).Text.get() + " " +
                               panel.box(T3X + axis).Text.get() + " " +
                               decimalText(kozos.Tartoperiod[axis + 1]) + " " +
                               labels[axis]->Caption.get() + " " + std::string(journal.size(), '!');
      EXPECT_EQ(row.substr(0, row.find('|') + 1) + seen, row);
      EXPECT_EQ(kozos.Modositott, journal.size() == 2 ? 0 : -1);
    }
    panel.FolLe[T2X + axis].Value = panel.FolLe[T3X + axis].Value = 24;
    EXPECT_EQ(labels[axis]->Caption.get(), "208.333 Hz (50%)");
  }
}

TEST_F(Timing, ThePartnersTextComesAheadOfItsValueAndBothAheadOfTheMovedField) {
  for (const int i : {T2X, T3X}) {
    panel.box(i).Text.observe([this, i] { journal.push_back("text " + panel.box(i).Text.get()); });
    panel.FolLe[i].Value.observe(
        [this, i] { journal.push_back("value " + decimalText(panel.FolLe[i].Value)); });
  }
  panel.Xttarto.Caption.observe([this] { journal.push_back(panel.Xttarto.Caption); });
  panel.FolLe[T3X].pressUp();
  EXPECT_EQ(journal, (support::Journal{"text 23", "value 23", "212.765 Hz (51.0%)", "value 25",
                                       "text 25", "208.333 Hz (52.0%)"}));
}

TEST_F(Timing, OnlyTheModeOfConstantFrequencyCouplesAndOnlyT2AndT3) {
  const auto press = [this](int i, int value, bool up) {
    panel.FolLe[i].Value = value;
    std::string before, after;
    for (int n = 0; n < timingFields; ++n) before += n == i ? "" : panel.box(n).Text.get() + " ";
    up ? panel.FolLe[i].pressUp() : panel.FolLe[i].pressDown();
    for (int n = 0; n < timingFields; ++n) after += n == i ? "" : panel.box(n).Text.get() + " ";
    EXPECT_EQ(before, after);
  };
  for (const bool constant : {true, false, true}) {
    (constant ? panel.MBTallando : panel.MBTValtozo).click();
    EXPECT_EQ(panel.MBTallando.Checked, constant);
    EXPECT_EQ(panel.MBTValtozo.Checked, !constant);
    for (int i = 0; i < (constant ? T2X : timingFields); ++i) {
      press(i, 255, true);
      press(i, 1, false);
    }
  }
  EXPECT_EQ(journal, support::Journal{});
  kozos.Modositott = 0;
  kozos.Tartoperiod[1] = 0;
  panel.MBTValtozo.click();
  EXPECT_EQ(kozos.Tartoperiod[1], 0);
  panel.MBTallando.click();
  EXPECT_EQ(kozos.Tartoperiod[1], 2) << "computed anew";
  EXPECT_EQ(kozos.Modositott, 0);
}

TEST_F(Timing, AT2TextAloneShowsTheDutyUnderTheLastPeriod) {
  panel.T3[T3X].Text = "48";
  EXPECT_EQ(panel.Xttarto.Caption.get(), "208.333 Hz (50%)") << "T3 has no event";
  panel.T2[T2Y].Text = "99";
  EXPECT_EQ(panel.Xttarto.Caption.get(), "208.333 Hz (100%)");
  EXPECT_EQ(kozos.Tartoperiod[1], 48);
  EXPECT_EQ(kozos.Modositott, 0);
}

TEST_F(Timing, AZeroInABoxDoesNotEndTheProgram) {
  for (int i = 0; i < timingFields; ++i) panel.box(i).Text = "0";
  fields.MindFrissit();
  EXPECT_EQ(captions(0), "0 Hz (0%), 0 S/s, 0 S/s");
}

/// Everything that an edition's view shows, in one text.
std::string view(const Kozos& kozos, const SetupPanel& panel) {
  const auto flags = [](std::initializer_list<const controls::Property<bool>*> values) {
    std::string text = " ";
    for (const auto* value : values) text += *value ? '1' : '0';
    return text;
  };
  return panel.Cim.Caption.get() + panel.lepes.Caption.get() + panel.Csucsf[1].Caption.get() + " " +
         decimalText(kozos.Alapido) + flags({&panel.MBKVilor.Checked, &panel.MBKTarso.Checked}) +
         flags({&panel.LineVilor1.Visible, &panel.LineVilor2.Visible, &panel.LineVilor3.Visible}) +
         flags({&panel.LineTarso1.Visible, &panel.LineTarso2.Visible}) +
         flags({&panel.Letolt.Enabled, &panel.Label15.Enabled, &panel.Verz.Enabled});
}
const std::string vilor =
    "Gerjesztés: Hibrid PWM (10 kHz) Vilor Firmware: egészlépés 54.9450 S/s .0001 10 111 00 011";
const std::string tarsoSlow =
    "Gerjesztés: Natív PWM (10 kHz) Tarso Firmware: fél lépés 109.890 S/s .0001 01 000 11 100";
const std::string tarso =
    "Gerjesztés: Natív PWM (30.30 kHz) Tarso Firmware: fél lépés 333.000 S/s .000033 01 000 11 100";

TEST_F(Timing, EditionFollowsTheVersionDigitByStrictComparisons) {
  const std::pair<const char*, std::string> cases[] = {
      {"1", vilor}, {"5", tarso},       {"2", vilor},  {"3", tarsoSlow},
      {"x", vilor}, {"2.1", tarsoSlow}, {"3.5", tarso}};
  for (const auto& [digit, shown] : cases) {
    kozos.VerFo = digit;
    editions.KiadasValaszt();
    EXPECT_EQ(view(kozos, panel), shown) << digit;
    EXPECT_EQ(kozos.VerFo, digit);
  }
  EXPECT_EQ(kozos.Modositott, 0);
}

TEST_F(Timing, MenuEntriesSetBaseTimeViewAndVersionText) {
  for (const bool second : {true, true, false}) {
    panel.Verz.Caption = "V5.0.3";
    (second ? panel.MBKTarso : panel.MBKVilor).click();
    EXPECT_EQ(view(kozos, panel), second ? tarso : vilor);
    EXPECT_EQ(panel.Xttarto.Caption.get(), second ? "631.313 Hz (50%)" : "208.333 Hz (50%)");
    EXPECT_EQ(panel.Verz.Caption.get(), "V?.?.?");
  }
  EXPECT_FALSE(panel.Verz.Visible);
  EXPECT_EQ(kozos.Modositott, 0);
}

TEST_F(Timing, FunkcioFiveIsForTheSecondEditionOnly) {
  panel.Funkcio.select(5);
  EXPECT_EQ(panel.Funkcio.ListIndex, 0);
  EXPECT_EQ(journal, (support::Journal{"box 48: Ez a funkció (Forszírozott Impulzus figyelés!) "
                                       "csak a Tarso Firmware-ben létezik!"
                                       "\r\nFunkció törölve."}));
  journal.clear();
  panel.MBKTarso.click();
  panel.Funkcio.select(5);
  EXPECT_EQ(panel.Funkcio.ListIndex, 5);
  EXPECT_EQ(journal, support::Journal{});
  panel.MBKVilor.click();
  EXPECT_EQ(panel.Funkcio.ListIndex, 0);
  EXPECT_EQ(
      journal,
      (support::Journal{
          "box 48: Tíltott funkció (Forszírozott Impulzus figyelés!), csak a Tarso Firmware-ben "
          "létezik!\r\nFunkció törölve."}));
}

TEST_F(Timing, TuningFieldsClampWhatIsTyped) {
  // Each row: what is typed, then the text, the spin value and the path length that follow.
  const auto check = [this](controls::TextBox& field, const controls::SpinButton& spin,
                            const std::vector<std::string>& rows) {
    for (const std::string& row : rows) {
      const std::string typed = row.substr(0, row.find('|'));
      field.type(typed);
      EXPECT_EQ(typed + "|" + field.Text.get() + "|" + decimalText(spin.Value) + "|" +
                    panel.Uthossz.Caption.get(),
                row);
    }
  };
  check(panel.Ut, panel.Utfolle,
        {"1001|1001|1001|12.51", "70000|65535|65535|819.1", "|1|1|.0125", "65535|65535|65535|819.1",
         "abc|1|1|.0125", "65535.2|65535|65535|819.1", "0.9|1|1|.0125",
         "99999999999999999999|65535|65535|819.1", "-3|1|1|.0125", "1000|1000|1000|12.5"});
  check(panel.Tures, panel.Turesfolle,
        {"256|255|255|12.5", "-5|0|0|12.5", "255|255|255|12.5", "|0|0|12.5", "||0|12.5"});
  check(panel.Spm, panel.Utfolle,
        {"9|3|1000|3000", "-1|0|1000|0", "3|3|1000|3000", "1,5|1,5|1000|1000", "||1000|0",
         "0.00000001|0.00000001|1000|.0000", "3|3|1000|3000"});
  check(panel.Ut, panel.Utfolle, {"65535|65535|65535|19660"});
  EXPECT_EQ(kozos.Modositott, 0);
}

TEST_F(Timing, TuningTextAndSpinButtonFollowEachOtherKeystrokeByKeystroke) {
  for (const char* typed : {"1", "15", "150", "1500"}) {
    panel.Ut.type(typed);
    EXPECT_EQ(panel.Utfolle.Value, std::stoi(typed));
  }
  panel.Ut.type("12");
  panel.Ut.type("12.");
  EXPECT_EQ(panel.Ut.Text.get(), "12.");
  panel.Ut.type("12.7");
  EXPECT_EQ(panel.Ut.Text.get(), "13");
  panel.Ut.type("12");
  panel.Ut.type("12.5");
  EXPECT_EQ(panel.Ut.Text.get(), "12.5")
      << "a tie goes to the even 12, where the spin value stands";
  EXPECT_EQ(panel.Utfolle.Value, 12);
  EXPECT_EQ(panel.Uthossz.Caption.get(), ".1562");
  panel.Utfolle.pressUp();
  EXPECT_EQ(panel.Ut.Text.get(), "13");
  EXPECT_EQ(panel.Uthossz.Caption.get(), ".1625");
  panel.Turesfolle.pressUp();
  EXPECT_EQ(panel.Tures.Text.get(), "2");
}

}  // namespace
}  // namespace monitra::timing
