#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

#include "bench/bit_output.h"
#include "bench/pulse_generator.h"
#include "support/journal.h"

namespace monitra::bench {
namespace {

using link::Pcb;
using support::hex;
using support::Journal;

/// The tab "Teszt" without its window, with the first port selected and board V4.x.
struct Jog : testing::Test {
  Jog() { port.PcbAlkalmaz(Pcb::V4x); }

  /// The journal of what has happened since the last call, in one line.
  std::string seen() {
    std::string line;
    for (const std::string& entry : std::exchange(journal, {})) line += entry + " ";
    return line;
  }
  std::string tick() {
    panel.Timer1.tick();
    return seen();
  }
  /// Everything that the generator switches.
  std::string state() {
    std::string text = panel.Impulzus.Value ? "in" : "out";
    text += panel.Timer1.Enabled ? " ticks " : " still ";
    for (int i = 0; i < 6; ++i) text += panel.Mozg[i].Enabled ? '1' : '0';
    text += ' ';
    for (int i = 0; i < 9; ++i) text += ports.Bitcim[i].Enabled ? '1' : '0';
    return text + (panel.SpindleGomb.Enabled ? " 1" : " 0") + (panel.SpindleGomb.Value ? "1" : "0");
  }

  Journal journal;
  support::JournalPort registers{journal};
  JogPanel panel;
  BitPanel bits;
  link::PortPanel ports;
  link::PortSelection port{ports, [](Pcb) {}};
  PulseGenerator generator{panel, ports, port, registers};
  BitOutput output{bits, panel, ports, port, registers};
};

const std::string running = "in ticks 111111 000000000 10";
const std::string stopped = "out still 000000 111111111 00";

TEST(TimerInterval, IsTheNearestMillisecondAndTheEvenOneAtATie) {
  for (const auto& [rate, interval] :
       {std::pair(1.0, 1000), std::pair(3.0, 333), std::pair(100.0, 10), std::pair(400.0, 2),
        std::pair(80.0, 12), std::pair(16.0, 62), std::pair(3.2, 312), std::pair(1000.0, 1),
        std::pair(1500.0, 1), std::pair(1999.0, 1), std::pair(2000.0, 0), std::pair(1e9, 0)}) {
    EXPECT_EQ(timerInterval(rate), interval) << rate;
  }
}

TEST_F(Jog, StartsAtTheRateInTheBoxAndCorrectsOneThatIsNone) {
  EXPECT_EQ(state(), stopped);
  for (const auto& [typed, text, interval] :
       {std::tuple("250", "250", 4), std::tuple("0", "1", 1000), std::tuple("abc", "1", 1000),
        std::tuple("", "1", 1000), std::tuple("0.9", "1", 1000), std::tuple("-5", "1", 1000),
        std::tuple("1.5", "1.5", 667), std::tuple("5000", "5000", 0)}) {
    panel.Seb.type(typed);
    panel.Impulzus.click();
    EXPECT_EQ(panel.Seb.Text.get() + " " + std::to_string(panel.Timer1.Interval),
              text + (" " + std::to_string(interval)));
    EXPECT_EQ(state(), running);
    panel.Mozg[0].press();
    EXPECT_EQ(tick() == "", interval == 0);
    panel.Impulzus.click();
    EXPECT_EQ(state(), stopped);
    EXPECT_EQ(tick(), "") << "stopping writes nothing, and no tick follows";
  }
}

/// What a tick with this flag does on the first port.
std::string pulse(Pcb pcb, int flag) {
  const char* const data[2][6] = {
      {"10 10 10 90 90 90 10 10", "80 80 80 0 0", "20 20 20 22 22 22 20 20", "2 2 2 0 0",
       "4 4 4 44 44 44 4 4", "40 40 40 0 0"},
      {"4 4 4 44 44 44 4 4", "40 40 40 0 0", "20 20 20 30 30 30 20 20", "10 10 10 0 0",
       "80 80 80 82 82 82 80 80", "2 2 2 0 0"}};
  std::string line = "r37A w37A=2 ";
  std::istringstream bytes(data[pcb == Pcb::V4x][flag]);
  for (std::string byte; bytes >> byte;) line += "w378=" + byte + " ";
  return line;
}

TEST_F(Jog, EachButtonGivesItsPulseOnBothBoardsInBothDirections) {
  panel.Impulzus.click();
  for (const Pcb pcb : {Pcb::V32, Pcb::V4x}) {
    port.PcbAlkalmaz(pcb);
    for (int i = 0; i < 6; ++i) {
      for (const bool inverted : {false, true}) {
        panel.Invert[i / 2].Checked = inverted;
        panel.Mozg[i].press();
        panel.Invert[i / 2].Checked = !inverted;
        const std::string expected = pulse(pcb, inverted ? i ^ 1 : i);
        EXPECT_EQ(tick(), expected) << "the inversion is read at the press";
        EXPECT_EQ(tick(), expected) << "one pulse for each tick";
        panel.Mozg[i].release();
        EXPECT_EQ(tick(), "r37A w37A=2 ") << "no button, no pulse";
        panel.Invert[i / 2].Checked = false;
      }
    }
  }
}

TEST_F(Jog, TheLowerFlagGoesFirstAndOneReleaseClearsBoth) {
  panel.Impulzus.click();
  for (const Pcb pcb : {Pcb::V32, Pcb::V4x}) {
    port.PcbAlkalmaz(pcb);
    for (int first = 0; first < 6; ++first) {
      for (int second = 0; second < 6; ++second) {
        panel.Mozg[first].press();
        panel.Mozg[second].press();
        EXPECT_EQ(tick(), pulse(pcb, std::min(first, second)));
        panel.Mozg[second].release();
        EXPECT_EQ(tick(), "r37A w37A=2 ") << "one is still held, but must be pressed again";
        panel.Mozg[first].release();
      }
    }
  }
}

TEST_F(Jog, SpindleBitFollowsItsToggleAndTheOtherBitsStay) {
  registers.values[0x37A] = 0x0D;
  panel.SpindleGomb.click();
  panel.Impulzus.click();
  EXPECT_EQ(tick(), "r37A w37A=F ");
  panel.SpindleGomb.click();
  EXPECT_EQ(seen() + tick() + tick(), "r37A w37A=D r37A w37A=D ");
  panel.Impulzus.click();
  EXPECT_EQ(state(), stopped);
  EXPECT_EQ(registers.values[0x37A], 0x0D) << "the relay stays as it was";
}

TEST_F(Jog, EveryWayOfStoppingWhileAButtonIsHeld) {
  ports.Bitcim[0].click();
  ports.Bitcim[7].click();
  ports.Bitcim[8].click();
  const auto note = [this](const char* name, const auto& property) {
    return [this, name, &property] { journal.push_back(name + std::string(property ? "+" : "-")); };
  };
  panel.Timer1.Enabled.observe(note("timer", panel.Timer1.Enabled));
  panel.Impulzus.Value.observe(note("generator", panel.Impulzus.Value));
  panel.SpindleGomb.Value.observe(note("spindle", panel.SpindleGomb.Value));
  ports.Cim1.Caption.observe([this] { journal.push_back(ports.Cim1.Caption); });
  ports.Cim2.Caption.observe([this] { journal.push_back(ports.Cim2.Caption); });
  const std::pair<std::function<void()>, const char*> ways[] = {
      {[this] { panel.Impulzus.click(); }, "generator- timer- spindle- "},
      {[this] { panel.Seb.type("101"); }, "generator- timer- spindle- "},
      {[this] { generator.SSTab1_GotFocus(); }, "timer- generator- spindle- "},
      {[this] { bits.Kuld.click(); }, "H378 H37A generator- timer- spindle- w378=81 w37A=2 "},
      {[this] { bits.Torles.click(); }, "timer- generator- spindle- H378 H37A w378=0 w37A=0 "}};
  for (const auto& [stop, expected] : ways) {
    ports.Cim1.Caption = ports.Cim2.Caption = "Cím";
    panel.Impulzus.click();
    panel.SpindleGomb.click();
    panel.Mozg[2].press();
    panel.Timer1.tick();
    journal.clear();
    stop();
    EXPECT_EQ(seen(), expected);
    EXPECT_EQ(state(), stopped);
    EXPECT_FALSE(panel.Mozg[2].Held) << "a button that is disabled comes up";
    panel.Impulzus.click();
    journal.clear();
    EXPECT_EQ(tick(), "r37A w37A=2 ") << "nothing of the old press is left";
    panel.Impulzus.click();
  }
}

TEST_F(Jog, BoardChangeTakesEffectAtTheNextTickAndPortChangeAtTheNextStart) {
  panel.Impulzus.click();
  panel.Mozg[4].press();
  EXPECT_EQ(tick(), pulse(Pcb::V4x, 4));
  port.Mpcb32_Click();
  EXPECT_EQ(seen(), "");
  EXPECT_EQ(tick(), pulse(Pcb::V32, 4));
  port.Mpcb40_Click();
  ports.LPT.select(2);
  EXPECT_EQ(tick(), pulse(Pcb::V4x, 4));
  for (int twice = 0; twice < 2; ++twice) panel.Impulzus.click();
  panel.Mozg[5].press();
  EXPECT_EQ(tick(), "r3BE w3BE=2 w3BC=2 w3BC=2 w3BC=2 w3BC=0 w3BC=0 ");
  EXPECT_EQ(ports.Cim1.Caption.get(), "");
}

TEST_F(Jog, BitOutputWritesWholeRegistersAndLeavesTheTicks) {
  EXPECT_EQ((bits.Kuld.click(), seen()), "w378=0 w37A=0 ");
  for (const Pcb pcb : {Pcb::V32, Pcb::V4x}) {
    port.PcbAlkalmaz(pcb);
    for (int i = 0; i < 9; ++i) {
      ports.Bitcim[i].click();
      EXPECT_EQ((bits.Kuld.click(), seen()),
                "w378=" + hex(i < 8 ? 1 << i : 0) + " w37A=" + (i == 8 ? "2 " : "0 "));
      EXPECT_EQ((bits.Torles.click(), seen()), "w378=0 w37A=0 ");
      EXPECT_TRUE(ports.Bitcim[i].Checked);
      ports.Bitcim[i].click();
    }
  }
  ports.LPT.select(1);
  EXPECT_EQ((bits.Torles.click(), seen()), "w278=0 w27A=0 ");
  EXPECT_EQ(ports.Cim1.Caption.get() + ports.Cim2.Caption.get(), "H278H27A");
}

}  // namespace
}  // namespace monitra::bench
