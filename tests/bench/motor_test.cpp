#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

#include "bench/phase_test.h"
#include "support/journal.h"

namespace monitra::bench {
namespace {

using support::Journal;
using Bytes = std::vector<int>;

const Bytes allOff{99, 0, 16, 110, 0, 16, 120, 0, 16};

/// The tab "PC-Link" without its window, with the first port selected and board V4.x.
struct Motors : testing::Test {
  /// What happens on the port, and to the display, while something is done; "beep" for a sound.
  template <class Action>
  Journal during(Action action) {
    journal.clear();
    action();
    return journal;
  }
  /// The journal of these bytes alone.
  Journal bytes(const Bytes& sent) {
    Journal expected;
    support::expectBytes(expected, "378", 0, 5, 7, sent);
    return expected;
  }
  std::string display() const {
    char colours[32];
    std::snprintf(colours, sizeof colours, "|%X|%X|", load.Taptext.ForeColor.get(),
                  load.Figy2.BackColor.get());
    return std::to_string(tap.TapLepes) + "|" + load.Taptext.Text.get() + colours +
           std::to_string(load.LEDsav.Level) + (load.Figy.Enabled ? "|warns" : "|") +
           (load.Figy2.Enabled ? "|warns" : "|") + (load.TulH.Checked ? "|150" : "|") +
           (load.Teh200.Checked ? "|200" : "|") + (load.TapFel.Enabled ? "" : "|off");
  }
  std::string selected() const {
    std::string text;
    for (int i = 0; i < 21; ++i) {
      if (phases.L[i].Value) text += std::to_string(i) + " ";
    }
    return text;
  }

  Journal journal;
  support::JournalPort registers{journal};
  link::PortPanel ports;
  link::PortSelection port{ports, [](link::Pcb) {}};
  link::SerialLine line{port, registers, registers};
  link::CommandFrames frames{line};
  PhasePanel phases;
  LoadPanel load;
  LoadTest tap{load, phases, frames, [this] { journal.emplace_back("beep"); }};
  PhaseTest test{phases, tap, frames};
};

const std::string idle = "0|0%|FF00|8000000F|0||||";

TEST_F(Motors, EachOptionSwitchesItsMotorOffAndItsLineOn) {
  EXPECT_EQ(selected(), "6 7 14 ") << "all off at the start";
  const std::map<int, Bytes> lines{{0, {99, 1}},   {2, {99, 2}},   {3, {99, 4}},   {5, {99, 8}},
                                   {6, {99, 16}},  {13, {110, 1}}, {11, {110, 2}}, {10, {110, 4}},
                                   {8, {110, 8}},  {7, {110, 16}}, {20, {120, 1}}, {18, {120, 2}},
                                   {17, {120, 4}}, {15, {120, 8}}, {14, {120, 16}}};
  for (int i = 0; i < 21; ++i) {
    const int motor = i / 7;
    const int off[] = {6, 7, 14};
    phases.L[off[motor]].Value = true;
    if (i == off[motor]) phases.L[i == 6 ? 0 : i + 1].Value = true;
    const std::string before = selected();
    const Journal seen = during([&] { phases.L[i].click(); });
    if (lines.count(i) == 0) {
      EXPECT_EQ(seen, Journal{}) << "a + can't be chosen";
      EXPECT_EQ(selected(), before);
      continue;
    }
    const Bytes& m = lines.at(i);
    EXPECT_EQ(seen, bytes({m[0], 0, 16, m[0], 0, m[1]})) << i;
    EXPECT_TRUE(phases.L[i].Value);
    EXPECT_EQ(during([&] { phases.L[i].click(); }), Journal{}) << "selected already";
    phases.L[off[motor]].Value = true;
    EXPECT_EQ(selected(), "6 7 14 ") << "one of each motor, the others' alone";
  }
}

TEST_F(Motors, SteppingGoesRoundTheFourLinesOfItsMotor) {
  const Bytes rings[] = {{0, 2, 3, 5, 0}, {13, 11, 10, 8, 13}, {20, 18, 17, 15, 20}};
  for (int motor = 0; motor < 3; ++motor) {
    const int byte[] = {99, 110, 120};
    int value = 1;
    for (const int next : rings[motor]) {
      EXPECT_EQ(during([&] { phases.Leptet[motor].click(); }),
                bytes({byte[motor], 0, 16, byte[motor], 0, value}));
      EXPECT_TRUE(phases.L[next].Value);
      value = value == 8 ? 1 : value * 2;
    }
  }
  EXPECT_EQ(selected(), "0 13 20 ");
}

TEST_F(Motors, TwelveStepsLoadTheSupplyAsFarAsThePermitsGo) {
  // Each row: the frame, then the display as it is after the press, up to the permits.
  const std::pair<Bytes, std::string> steps[] = {{{99, 0, 1}, "1| 16.66%|FF00|8000000F|8||"},
                                                 {{110, 0, 1}, "2| 33.33%|FF00|8000000F|17||"},
                                                 {{120, 0, 1}, "3| 50%|FF00|8000000F|25||"},
                                                 {{99, 0, 2}, "4| 66.66%|FF00|8000000F|33||"},
                                                 {{110, 0, 2}, "5| 83.33%|FF00|8000000F|42||"},
                                                 {{120, 0, 2}, "6| 100%|FF00|8000000F|50||"},
                                                 {{99, 0, 4}, "7| 116.6%|FFFF|8000000F|58||"},
                                                 {{110, 0, 4}, "8| 133.3%|FFFF|FF|67|warns|warns"},
                                                 {{120, 0, 4}, "9| 150%|FFFF|FF|75|warns|warns"},
                                                 {{99, 0, 8}, "10| 166.6%|FF|FF|83|warns|warns"},
                                                 {{110, 0, 8}, "11| 183.3%|FF|FF|92|warns|warns"},
                                                 {{120, 0, 8}, "12| 200%|FF|FF|100|warns|warns"}};
  for (const int permits : {0, 1, 2, 3}) {
    const std::string marks =
        std::string(permits & 1 ? "|150" : "|") + (permits & 2 ? "|200" : "|");
    const std::size_t reach = permits == 3 ? 12 : permits == 1 ? 9 : 6;
    if (permits & 1) load.TulH.click();
    if (permits & 2) load.Teh200.click();
    for (std::size_t n = 0; n < reach; ++n) {
      EXPECT_EQ(during([this] { load.TapFel.click(); }), bytes(steps[n].first));
      EXPECT_EQ(display(), steps[n].second + marks);
    }
    for (int twice = 0; twice < 2; ++twice) {
      EXPECT_EQ(during([this] { load.TapFel.click(); }),
                permits == 3 ? bytes(steps[11].first) : Journal{"beep"});
      EXPECT_EQ(display(), steps[reach - 1].second + marks);
    }
    for (int twice = 0; twice < 2; ++twice) {
      EXPECT_EQ(during([this] { load.TapStop.click(); }), bytes(allOff));
      EXPECT_EQ(display(), idle);
    }
  }
}

TEST_F(Motors, EachPartOfAPressComesInItsOrder) {
  const auto note = [this](const char* name, auto& property) {
    property.observe([this, name, &property] {
      std::ostringstream text;
      text << name << std::hex << std::uppercase << property.get();
      journal.push_back(text.str());
    });
  };
  load.LEDsav.Limit1 = load.LEDsav.Limit2 = 1;
  note("button ", load.TapFel.Enabled);
  note("limit 2 ", load.LEDsav.Limit2);
  note("limit 1 ", load.LEDsav.Limit1);
  note("bar ", load.LEDsav.Level);
  note("frame ", load.Figy.Enabled);
  note("words ", load.Figy2.Enabled);
  note("ground ", load.Figy2.BackColor);
  note("colour ", load.Taptext.ForeColor);
  note("text", load.Taptext.Text);
  note("150 ", load.TulH.Checked);
  note("200 ", load.Teh200.Checked);
  const auto around = [](Journal before, const Bytes& sent, const Journal& after) {
    support::expectBytes(before, "378", 0, 5, 7, sent);
    before.insert(before.end(), after.begin(), after.end());
    return before;
  };
  const auto press = [this] { load.TapFel.click(); };
  EXPECT_EQ(during(press), around({"button 0", "limit 2 4B", "limit 1 32", "bar 8"}, {99, 0, 1},
                                  {"text 16.66%", "button 1"}));
  for (int n = 2; n <= 6; ++n) press();
  EXPECT_EQ(during(press), (Journal{"button 0", "beep", "button 1"}));
  load.TulH.click();
  load.Teh200.click();
  EXPECT_EQ(during(press),
            around({"button 0", "bar 3A"}, {99, 0, 4}, {"colour FFFF", "text 116.6%", "button 1"}));
  EXPECT_EQ(during(press), around({"button 0", "bar 43", "frame 1", "words 1", "ground FF"},
                                  {110, 0, 4}, {"text 133.3%", "button 1"}));
  EXPECT_EQ(during([this] { load.TapStop.click(); }),
            around({"button 0", "bar 0"}, allOff,
                   {"colour FF00", "text0%", "150 0", "200 0", "frame 0", "words 0",
                    "ground 8000000F", "button 1"}));
}

TEST_F(Motors, PhaseAndLoadTestsEndEachOtherInAnyOrderOfPresses) {
  std::mt19937 random(34);
  std::array<int, 3> rows{6, 6, 6};
  int step = 0, highest = 0;
  bool permit150 = false, permit200 = false;
  Bytes sent;
  const int motors[] = {99, 110, 120};
  const int lines[] = {1, 2, 4, 8};
  const int values[] = {1, 0, 2, 4, 0, 8, 16};
  const int next[] = {2, 0, 3, 5, 0, 0, 0};
  const auto send = [&sent](int motor, int value) { sent.insert(sent.end(), {motor, 0, value}); };
  const auto stop = [&] {
    step = 0;
    permit150 = permit200 = false;
    sent.insert(sent.end(), allOff.begin(), allOff.end());
  };
  const auto choose = [&](int motor, int row) {
    if (rows[motor] == row || values[row] == 0) return;
    rows[motor] = row;
    if (step > 0) stop();
    send(motors[motor], 16);
    send(motors[motor], values[row]);
  };
  for (int n = 0; n < 4000; ++n) {
    const int motor = static_cast<int>(random() % 3);
    const int row = static_cast<int>(random() % 7);
    Journal expected;
    sent.clear();
    journal.clear();
    switch (random() % 24) {
      case 0:
        phases.L[phaseIndex(motor, row)].click();
        choose(motor, row);
        break;
      case 1:
        phases.Leptet[motor].click();
        choose(motor, next[rows[motor]]);
        break;
      case 2:
        load.TapStop.click();
        stop();
        break;
      case 3:
      case 4:
        load.TulH.click();
        permit150 = !permit150;
        break;
      case 5:
      case 6:
        load.Teh200.click();
        permit200 = !permit200;
        break;
      default:
        load.TapFel.click();
        for (int m = 0; m < 3; ++m) choose(m, 6);
        if ((step >= 6 && !permit150) || (step >= 9 && !permit200)) {
          expected.emplace_back("beep");
          break;
        }
        step = std::min(step + 1, 12);
        highest = std::max(highest, step);
        send(motors[(step - 1) % 3], lines[(step - 1) / 3]);
    }
    support::expectBytes(expected, "378", 0, 5, 7, sent);
    ASSERT_EQ(journal, expected) << "at event " << n;
    ASSERT_EQ(tap.TapLepes, step);
    ASSERT_EQ(load.TulH.Checked, permit150);
    ASSERT_EQ(load.Teh200.Checked, permit200);
    std::string options;
    for (int m = 0; m < 3; ++m)
      options += std::to_string(m == 0 ? rows[0] : 7 * m + 6 - rows[m]) + " ";
    ASSERT_EQ(selected(), options);
  }
  EXPECT_EQ(highest, 12) << "the presses must reach what they are about";
}

TEST_F(Motors, APhaseClickEndsTheLoadTestAndALoadPressThePhaseTest) {
  for (int n = 0; n < 2; ++n) load.TapFel.click();
  Bytes expected = allOff;
  for (const int byte : {110, 0, 16, 110, 0, 4}) expected.push_back(byte);
  EXPECT_EQ(during([this] { phases.L[10].click(); }), bytes(expected));
  EXPECT_EQ(display(), idle);
  EXPECT_EQ(selected(), "6 10 14 ");

  phases.L[0].click();
  phases.L[20].click();
  EXPECT_EQ(
      during([this] { load.TapFel.click(); }),
      bytes({99, 0, 16, 99, 0, 16, 110, 0, 16, 110, 0, 16, 120, 0, 16, 120, 0, 16, 99, 0, 1}));
  EXPECT_EQ(selected(), "6 7 14 ");
  EXPECT_EQ(display(), "1| 16.66%|FF00|8000000F|8||||");
}

}  // namespace
}  // namespace monitra::bench
