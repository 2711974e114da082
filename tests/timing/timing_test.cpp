#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

#include "support/journal.h"
#include "support/rows.h"
#include "timing/current_curve.h"
#include "timing/editions.h"
#include "timing/holding_frequency.h"
#include "timing/numbers.h"
#include "timing/timing_fields.h"

namespace monitra::timing {
namespace {

using namespace support;

TEST(Numbers, AreReadAtTheHeadOfAText) {
  for (const Row& row : rows("numbers")) {
    const double number = Ertek(row[0]);
    EXPECT_EQ((Row{row[0], decimalText(number), isNumber(row[0]) ? "yes" : "no"}), row);
    EXPECT_EQ(std::signbit(number), row[1][0] == '-') << row[0];
  }
  const std::string digits(400, '9');
  EXPECT_EQ(Ertek(digits + ".5"), std::numeric_limits<double>::max());
  EXPECT_EQ(Ertek("-" + digits), -std::numeric_limits<double>::max());
  for (const std::string& tiny :
       {"." + std::string(400, '0') + "1", "-0." + std::string(400, '0')}) {
    EXPECT_EQ(Ertek(tiny), 0);
    EXPECT_TRUE(isNumber(tiny)) << tiny;
  }
}

TEST(Numbers, HaveFifteenDigitsNoExponentAndNoZeroAheadOfThePoint) {
  for (const Row& row : rows("texts")) {
    const double number = std::stod(row[0]);
    EXPECT_EQ(numberText(number), row[1]);
    EXPECT_EQ(decimalText(number), row[1].substr(number >= 0 ? 1 : 0));
  }
}

TEST(Numbers, RoundToTheEvenNeighbourAndStayAnInt) {
  for (const double tie : {11.5, 12.5, 12.4, 11.7}) EXPECT_EQ(wholeNumber(tie), 12) << tie;
  EXPECT_EQ(wholeNumber(-1.5), -2);
  EXPECT_EQ(wholeNumber(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(wholeNumber(-1e300), std::numeric_limits<int>::min());
}

TEST(Curve, IsToScaleAndItsSpeedsAreInMillimetresToo) {
  for (const Row& row : rows("curve")) {
    std::istringstream words(row[0]);
    bool tarso = false;
    AxisTimes times;
    double until = 0;
    words >> tarso >> times.tf >> times.t1 >> times.t2 >> times.t3 >> until;
    std::ostringstream corners;
    for (const auto& [time, level] : currentCurve(times, {tarso, 1}, until)) {
      corners << (corners.tellp() > 0 ? " " : "") << time << ":" << level;
    }
    EXPECT_EQ(corners.str(), row[1]);
  }
  EXPECT_EQ(curveLength({2, 3, 4, 5}, {true, 0.5}), 11.5);
  for (const Row& row : rows("speeds")) {
    EXPECT_EQ(speedText(std::stod(row[0]), std::stod(row[1])), row[2]);
  }
}

/// The room with its handlers, as the window description has it, at the first edition's base time.
struct Timing : testing::Test {
  Timing() {
    kozos.Alapido = slowBase;
    fields.MindFrissit();
  }

  /// The derived values of X, Y and Z as they are shown.
  Journal captions() const {
    Journal shown{panel.Xttarto.Caption, panel.Yttarto.Caption, panel.Zttarto.Caption};
    for (int axis = 0; axis < 3; ++axis) {
      shown[axis] +=
          ", " + panel.Csucsf[axis].Caption.get() + ", " + panel.Nhatar[axis].Caption.get();
    }
    return shown;
  }

  /// Everything that an edition shows.
  Journal view() const {
    std::string flags;
    for (const auto* flag :
         {&panel.MBKVilor.Checked, &panel.MBKTarso.Checked, &panel.LineVilor1.Visible,
          &panel.LineVilor2.Visible, &panel.LineVilor3.Visible, &panel.LineTarso1.Visible,
          &panel.LineTarso2.Visible, &panel.Letolt.Enabled, &panel.Label15.Enabled,
          &panel.Verz.Enabled, &panel.Label15.Visible, &panel.Verz.Visible}) {
      flags += *flag ? '1' : '0';
    }
    return {panel.Cim.Caption, panel.lepes.Caption, flags, captions()[1]};
  }

  Journal journal;
  JournalBoxes box{journal};
  Kozos kozos;
  SetupPanel panel;
  TimingFields fields{kozos, panel};
  Editions editions{kozos, panel, fields, box};
  HoldingFrequency coupling{kozos, panel, fields, [this] { journal.emplace_back("beep"); }};
};

TEST_F(Timing, ATextAloneShowsTheDutyUnderTheLastPeriodUntilAllIsComputedAnew) {
  const std::string rest = ", 54.9450 S/s, 40.9836 S/s";
  const char* const numbers[] = {"0", "1",   "255", "0", "1", "255",
                                 "0", "255", "1",   "0", "1", "255"};
  const char* const duties[] = {"0%", "2.08%", "531.%"};
  for (int axis = 0; axis < 3; ++axis) {
    for (const int i : {TFX + axis, T1X + axis, T3X + axis}) panel.box(i).Text = numbers[i];
    EXPECT_EQ(captions()[axis], "208.333 Hz (50%)" + rest) << "no event, " << axis;
    const int t2 = T2X + (axis + 1) % 3;
    panel.T2[t2].Text = numbers[t2];
    EXPECT_EQ(captions()[axis], "208.333 Hz (" + std::string(duties[axis]) + ")" + rest) << axis;
  }
  panel.MBTValtozo.click();
  EXPECT_EQ(kozos.Tartoperiod[2], 48);
  panel.MBTallando.click();
  EXPECT_EQ(kozos.Tartoperiod[2], 256);
  EXPECT_TRUE(same(captions(), rows("captions")[0]));
  fields.MindFrissit();
  EXPECT_TRUE(same(captions(), rows("captions")[1]));
}

TEST_F(Timing, APressMovesItsFieldAndWithConstantFrequencyThePartnerAheadOfItTheOtherWay) {
  for (int i = 0; i < timingFields; ++i) {
    journalise(journal, panel.box(i).Text, std::to_string(i) + " text ");
    journalise(journal, panel.FolLe[i].Value, std::to_string(i) + " value ");
  }
  for (const bool constant : {true, false, true}) {
    (constant ? panel.MBTallando : panel.MBTValtozo).click();
    EXPECT_TRUE(panel.MBTallando.Checked == constant && panel.MBTValtozo.Checked != constant);
    for (int i = 0; i < timingFields; ++i) {
      const std::string names[] = {std::to_string(i), std::to_string((i + 3) % 6 + i / 6 * 6)};
      for (const Row& row : rows(constant && i >= T2X ? "coupled presses" : "presses")) {
        panel.FolLe[i].Value = std::stoi(row[1]);
        panel.FolLe[std::stoi(names[1])].Value = std::stoi(row[2]);
        journal.clear();
        row[0] == "up" ? panel.FolLe[i].pressUp() : panel.FolLe[i].pressDown();
        Journal expected(row.begin() + 3, row.end());
        for (std::string& entry : expected) {
          if (entry != "beep") entry.replace(0, 3, names[entry.starts_with("two")]);
        }
        EXPECT_TRUE(same(journal, expected)) << i << testing::PrintToString(row);
      }
    }
  }
}

TEST_F(Timing, EveryRouteToAnEditionShowsAllOfIt) {
  for (const Row& row : rows("editions")) {
    const std::string& route = row[0];
    const bool menu = route.size() > 3;
    panel.Verz.Caption = "V5.0.3";
    if (menu) (route == "Tarso" ? panel.MBKTarso : panel.MBKVilor).click();
    if (!menu) kozos.VerFo = route;
    if (!menu) editions.KiadasValaszt();
    EXPECT_TRUE(same(view(), rows(row[1])[0])) << route;
    EXPECT_EQ(panel.Verz.Caption.get(), menu ? "V?.?.?" : "V5.0.3") << route;
  }
  EXPECT_EQ(kozos.VerFo, "3.5");
}

}  // namespace
}  // namespace monitra::timing
