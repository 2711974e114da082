#include <gtest/gtest.h>

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
  EXPECT_EQ(std::to_string(load.LEDsav.Limit1) + " " + std::to_string(load.LEDsav.Limit2), "50 75");
}

TEST_F(Motors, ThePermitsEndWithTheStopInTheirOrderAndTheButtonWaitsMeanwhile) {
  load.TulH.click();
  load.Teh200.click();
  const auto note = [this](const char* name, const auto& property) {
    return [this, name, &property] { journal.push_back(name + std::to_string(property)); };
  };
  load.TapFel.Enabled.observe(note("button ", load.TapFel.Enabled));
  load.TulH.Checked.observe(note("150 ", load.TulH.Checked));
  load.Teh200.Checked.observe(note("200 ", load.Teh200.Checked));
  load.LEDsav.Level.observe(note("bar ", load.LEDsav.Level));
  const auto around = [this](Journal before, const Bytes& sent, const Journal& after) {
    support::expectBytes(before, "378", 0, 5, 7, sent);
    before.insert(before.end(), after.begin(), after.end());
    return before;
  };
  EXPECT_EQ(during([this] { load.TapFel.click(); }),
            around({"button 0", "bar 8"}, {99, 0, 1}, {"button 1"}));
  EXPECT_EQ(during([this] { load.TapStop.click(); }),
            around({"button 0", "bar 0"}, allOff, {"150 0", "200 0", "button 1"}));
}

TEST_F(Motors, APhaseClickEndsTheLoadTestAndALoadPressThePhaseTest) {
  for (int n = 0; n < 2; ++n) load.TapFel.click();
  Bytes expected = allOff;
  for (const int byte : {110, 0, 16, 110, 0, 4}) expected.push_back(byte);
  EXPECT_EQ(during([this] { phases.L[10].click(); }), bytes(expected));
  EXPECT_EQ(display(), idle);
  EXPECT_EQ(selected(), "6 10 14 ");

  phases.L[20].click();
  EXPECT_EQ(during([this] { load.TapFel.click(); }),
            bytes({110, 0, 16, 110, 0, 16, 120, 0, 16, 120, 0, 16, 99, 0, 1}));
  EXPECT_EQ(selected(), "6 7 14 ");
  EXPECT_EQ(display(), "1| 16.66%|FF00|8000000F|8||||");
  EXPECT_EQ(during([this] { phases.L[6].click(); }), Journal{}) << "selected already";
  EXPECT_EQ(during([this] { load.TapStop.click(); }), bytes(allOff));

  phases.L[2].click();
  EXPECT_EQ(during([this] { load.TapStop.click(); }), bytes(allOff));
  EXPECT_EQ(selected(), "2 7 14 ") << "the stop leaves the options as they are";
}

}  // namespace
}  // namespace monitra::bench
