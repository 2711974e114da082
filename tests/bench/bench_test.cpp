#include <gtest/gtest.h>
#include <sstream>

#include "bench/bit_output.h"
#include "bench/phase_test.h"
#include "bench/pulse_generator.h"
#include "support/journal.h"
#include "support/rows.h"

namespace monitra::bench {
namespace {

using namespace support;

/// The tab "PC-Link" without its window, with the first port selected and board V4.x.
struct Motors {
  Journal journal;
  JournalPort registers{journal};
  link::PortPanel ports;
  link::PortSelection port{ports, [](link::Pcb) {}};
  link::SerialLine line{port, registers, registers};
  link::CommandFrames frames{line};
  PhasePanel phases;
  LoadPanel load;
  LoadTest tap{load, phases, frames, [this] { journal.emplace_back("beep"); }};
  PhaseTest test{phases, tap, frames};
};

struct MotorTests : testing::Test, Motors {};

TEST_F(MotorTests, EachPartOfAPressComesInItsOrder) {
  const auto note = [this](const char* name, auto& property) {
    journalise(journal, property, name, std::hex);
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
  tap.begun.handle([this] { journal.emplace_back("begun"); });
  tap.refused.handle([this] { journal.emplace_back("refused"); });
  const auto press = [this](controls::PushButton& button) {
    journal.clear();
    button.click();
    return decoded(journal);
  };
  const auto presses = rows("presses");
  EXPECT_TRUE(same(press(load.TapFel), presses[0]));
  for (int n = 2; n <= 6; ++n) press(load.TapFel);
  EXPECT_TRUE(same(press(load.TapFel), presses[1]));
  load.TulH.click();
  load.Teh200.click();
  EXPECT_TRUE(same(press(load.TapFel), presses[2]));
  EXPECT_TRUE(same(press(load.TapFel), presses[3]));
  EXPECT_TRUE(same(press(load.TapStop), presses[4]));
}

/// The tab "Teszt" without its window, with the first port selected and board V4.x.
struct Jog : testing::Test {
  Journal journal;
  JournalPort registers{journal};
  JogPanel panel;
  BitPanel bits;
  link::PortPanel ports;
  link::PortSelection port{ports, [](link::Pcb) {}};
  PulseGenerator generator{panel, ports, port, registers};
  BitOutput output{bits, panel, ports, port, registers};
};

TEST_F(Jog, StartsAtTheRateInTheBoxAndCorrectsOneThatIsNone) {
  for (const Row& row : rows("rates")) {
    panel.Seb.type(row[0]);
    EXPECT_FALSE(panel.Impulzus.Value) << row[0] << ": an edit stops, after a correction too";
    panel.Impulzus.click();
    EXPECT_TRUE(panel.Impulzus.Value) << row[0] << ": a correction is no edit";
    EXPECT_EQ(panel.Seb.Text.get() + "|" + std::to_string(panel.Timer1.Interval),
              row[1] + "|" + row[2]);
  }
  EXPECT_TRUE(same(journal, {})) << "neither a start nor a stop touches the port";
}

TEST_F(Jog, EveryWayOfStoppingHasItsOrder) {
  journalise(journal, panel.Timer1.Enabled, "timer ");
  journalise(journal, panel.Impulzus.Value, "generator ");
  journalise(journal, panel.SpindleGomb.Value, "spindle ");
  for (auto* label : {&ports.Cim1, &ports.Cim2}) journalise(journal, label->Caption);
  for (const int box : {0, 7, 8}) ports.Bitcim[box].click();
  const std::tuple<const char*, std::function<void()>, Journal> ways[] = {
      {"toggle", [this] { panel.Impulzus.click(); }, {"generator 0", "timer 0", "spindle 0"}},
      {"rate", [this] { panel.Seb.type("101"); }, {"generator 0", "timer 0", "spindle 0"}},
      {"focus", [this] { generator.SSTab1_GotFocus(); }, {"timer 0", "generator 0", "spindle 0"}},
      {"bits",
       [this] { bits.Kuld.click(); },
       {"H378", "H37A", "generator 0", "timer 0", "spindle 0", "w378=81", "w37A=2"}},
      {"zeros",
       [this] { bits.Torles.click(); },
       {"timer 0", "generator 0", "spindle 0", "H378", "H37A", "w378=0", "w37A=0"}}};
  for (const auto& [way, stop, expected] : ways) {
    ports.Cim1.Caption = ports.Cim2.Caption = "Cím";
    panel.Impulzus.click();
    panel.SpindleGomb.click();
    journal.clear();
    stop();
    EXPECT_TRUE(same(journal, expected)) << way;
  }
}

}  // namespace
}  // namespace monitra::bench
