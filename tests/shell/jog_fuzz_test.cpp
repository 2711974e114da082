#include <gtest/gtest.h>
#include <random>
#include <set>

#include "support/program.h"

namespace monitra::shell {
namespace {

using support::hex;

/// What may be on the ports after each of the user's actions, told again in a few lines.
struct Model {
  bool on = false, ticks = true, spindle = false, v4x = true;
  int lpt = 0, used = 0, tab = 0;
  std::set<int> held, flags;
  std::array<bool, 3> inverted{};
  std::array<int, 3> data{};  ///< content of each port's data register
  std::string expected;

  static const char* address(int port) { return std::array{"378", "278", "3BC"}[port]; }

  void release() { held.clear(), flags.clear(); }
  void stop() { on = spindle = false, release(); }
  void put(int port, int value) {
    data[port] = value;
    expected += std::string("w") + address(port) + "=" + hex(value) + " ";
  }
  void bits() {
    stop();
    used = lpt;
    put(lpt, 0);
    expected += std::array{"w37A=0 ", "w27A=0 ", "w3BE=0 "}[lpt];
  }
  void idleLines() {
    expected += std::string("r") + address(lpt) + " ";
    put(lpt, data[lpt] & (v4x ? 0x5F : 0xDB));
  }
  void tick() {
    if (!on || !ticks) return;
    const std::string control = std::array{"37A", "27A", "3BE"}[used];
    expected += "r" + control + " w" + control + (spindle ? "=0 " : "=2 ");
    if (flags.empty()) return;
    constexpr int steps[2][3] = {{0x80, 0x02, 0x40}, {0x40, 0x10, 0x02}};
    constexpr int directions[2][3] = {{0x10, 0x20, 0x04}, {0x04, 0x20, 0x80}};
    const int first = *flags.begin();
    const int direction = first % 2 == 0 ? directions[v4x][first / 2] : 0;
    for (int n = 0; direction != 0 && n < 3; ++n) put(used, direction);
    for (int n = 0; n < 3; ++n) put(used, direction | steps[v4x][first / 2]);
    for (int n = 0; n < 2; ++n) put(used, direction);
  }
};

struct JogFuzz : testing::Test, support::Program {};

TEST_F(JogFuzz, NoOrderOfEventsGivesAPulseWithoutAHeldButtonAndTheGeneratorOn) {
  lap.Form_Load();
  journal.clear();
  std::mt19937 random(20);
  Model model;
  int i = 0;  // any of the six buttons
  const auto type = [&](const std::string& rate) {
    if (rate != lap.jog.Seb.Text.get()) model.stop();
    lap.jog.Seb.type(rate);
  };
  const auto press = [&] {
    lap.jog.Mozg[i].press();
    if (!model.on) return;
    model.held.insert(i);
    model.flags.insert(model.inverted[i / 2] ? i ^ 1 : i);
  };
  const auto tick = [&] {
    lap.jog.Timer1.tick();
    model.tick();
  };
  const std::function<void()> actions[] = {
      press,
      press,
      press,
      tick,
      tick,
      tick,
      [&] {
        lap.jog.Mozg[i].release();
        if (model.held.erase(i) != 0) model.flags.clear();
      },
      [&] {
        lap.jog.releaseAll();
        model.release();
      },
      [&] {
        lap.SSTab1.GotFocus.raise();
        model.stop();
      },
      [&] {
        lap.SSTab1.Tab = i % 4;
        if (std::exchange(model.tab, i % 4) != 2 && i % 4 == 2) model.idleLines();
      },
      [&] { type("100"); },
      [&] { type(std::to_string(random() % 3000 + 1)); },
      [&] {
        lap.jog.Impulzus.click();
        model.on ? model.stop() : void(model.on = true);
        model.used = model.lpt;
        model.ticks = std::stoi(lap.jog.Seb.Text) < 2000;
      },
      [&] {
        (i % 2 == 0 ? lap.bits.Kuld : lap.bits.Torles).click();
        model.bits();
      },
      [&] {
        lap.jog.Invert[i / 2].click();
        model.inverted[i / 2] = !model.inverted[i / 2];
      },
      [&] {
        lap.jog.SpindleGomb.click();
        model.spindle = model.on && !model.spindle;
      },
      [&] {
        model.v4x = i % 2 == 0;
        (model.v4x ? lap.port.Mpcb40 : lap.port.Mpcb32).click();
        model.expected += std::string("set Monitra Setup/Setup.PCB=") + (model.v4x ? "40 " : "32 ");
      },
      [&] { lap.port.LPT.select(model.lpt = i / 2); }};
  int pulses = 0;
  for (int n = 0; n < 200000; ++n) {
    i = static_cast<int>(random() % 6);
    model.expected.clear();
    actions[random() % std::size(actions)]();
    std::string seen;
    for (const std::string& entry : std::exchange(journal, {})) seen += entry + " ";
    ASSERT_EQ(seen, model.expected) << "at event " << n;
    ASSERT_EQ(lap.jog.Impulzus.Value, model.on);
    std::set<int> held;
    for (int button = 0; button < 6; ++button) {
      if (lap.jog.Mozg[button].Held) held.insert(button);
    }
    ASSERT_EQ(held, model.held);
    ASSERT_TRUE(model.flags.empty() || (model.on && !held.empty()));
    if (std::count(seen.begin(), seen.end(), 'w') > 3) ++pulses;
  }
  EXPECT_GT(pulses, 1000) << "the fuzz must reach what it is about";
}

}  // namespace
}  // namespace monitra::shell
