#include <gtest/gtest.h>

#include "bench/bit_output.h"
#include "bench/phase_test.h"
#include "bench/pulse_generator.h"
#include "support/journal.h"
#include "support/rows.h"

namespace monitra::bench {
namespace {

using namespace support;

/// The tabs "PC-Link" and "Teszt" without their window, with the first port selected and board
/// V4.x.
struct Bench : testing::Test {
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
  JogPanel jog;
  BitPanel bits;
  PulseGenerator generator{jog, ports, port, registers};
  BitOutput output{bits, jog, ports, port, registers};
};

TEST_F(Bench, EachPartOfAPressComesInItsOrder) {
  load.LEDsav.Limit1 = load.LEDsav.Limit2 = 1;
  journalise(journal, load.TapFel.Enabled, "button ");
  journalise(journal, load.LEDsav.Limit2, "limit 2 ");
  journalise(journal, load.LEDsav.Limit1, "limit 1 ");
  journalise(journal, load.LEDsav.Level, "bar ");
  journalise(journal, load.Figy.Enabled, "frame ");
  journalise(journal, load.Figy2.Enabled, "words ");
  journalise(journal, load.Figy2.BackColor, "ground ");
  journalise(journal, load.Taptext.ForeColor, "colour ");
  journalise(journal, load.Taptext.Text, "text");
  journalise(journal, load.TulH.Checked, "150 ");
  journalise(journal, load.Teh200.Checked, "200 ");
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

TEST_F(Bench, EveryWayOfStoppingHasItsOrder) {
  journalise(journal, jog.Timer1.Enabled, "timer ");
  journalise(journal, jog.Impulzus.Value, "generator ");
  journalise(journal, jog.SpindleGomb.Value, "spindle ");
  for (auto* label : {&ports.Cim1, &ports.Cim2}) journalise(journal, label->Caption);
  for (const int box : {0, 7, 8}) ports.Bitcim[box].click();
  const std::function<void()> ways[] = {
      [this] { jog.Impulzus.click(); }, [this] { jog.Seb.type("101"); },
      [this] { generator.SSTab1_GotFocus(); }, [this] { bits.Kuld.click(); },
      [this] { bits.Torles.click(); }};
  const auto stops = rows("stops");
  for (std::size_t way = 0; way < std::size(ways); ++way) {
    ports.Cim1.Caption = ports.Cim2.Caption = "Cím";
    jog.Impulzus.click();
    jog.SpindleGomb.click();
    journal.clear();
    ways[way]();
    EXPECT_TRUE(same(journal, stops[way])) << way;
  }
}

}  // namespace
}  // namespace monitra::bench
