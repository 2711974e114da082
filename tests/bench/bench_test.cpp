#include <gtest/gtest.h>
#include <sstream>

#include "bench/bit_output.h"
#include "bench/phase_test.h"
#include "bench/pulse_generator.h"
#include "support/fuzz.h"
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

/// The options of each motor from top to bottom: L1, +, L2, L3, +, L4, off.
constexpr int options[3][7] = {
    {0, 1, 2, 3, 4, 5, 6}, {13, 12, 11, 10, 9, 8, 7}, {20, 19, 18, 17, 16, 15, 14}};

/// What the two tests of the tab send, show, and do to each other, told again in a few lines.
struct MotorWorld : Motors {
  testing::AssertionResult act(std::uint32_t random, std::string& name) {
    const Action& action = actions[std::min<std::size_t>(random % 24, actions.size() - 1)];
    const int motor = static_cast<int>(random >> 8) % 3, row = static_cast<int>(random >> 16) % 7;
    name = action.name + (" " + std::to_string(motor) + " " + std::to_string(row));
    journal.clear();
    expected.clear();
    sent.clear();
    action.act(motor, row);
    if (!sent.empty()) expected.insert(expected.begin(), sent.substr(1));
    Journal seen = decoded(journal);
    seen.push_back(display() + permits(load.TulH.Checked, load.Teh200.Checked));
    expected.push_back(steps[step][1] + permits(permit150, permit200));
    for (int m = 0; m < 3; ++m) expected.push_back("L" + std::to_string(options[m][chosen[m]]));
    for (int i = 0; i < 21; ++i) {
      if (phases.L[i].Value) seen.push_back("L" + std::to_string(i));
    }
    return same(seen, expected);
  }
  std::string display() const {
    return load.Taptext.Text.get() + " " + colour(load.Taptext.ForeColor) + " " +
           colour(load.Figy2.BackColor) + " " + std::to_string(load.LEDsav.Level) +
           (load.Figy.Enabled ? " 1" : " 0") + (load.Figy2.Enabled ? " 1" : " 0");
  }
  static std::string colour(controls::Colour value) { return hex(static_cast<int>(value)); }
  static std::string permits(bool first, bool second) {
    return std::string(first ? " 150%" : "") + (second ? " 200%" : "");
  }

  void send(int motor, int value) {
    sent += std::array{" 99", " 110", " 120"}[motor] + (" 0 " + std::to_string(value));
  }
  void stop() {
    step = 0;
    permit150 = permit200 = false;
    for (int motor = 0; motor < 3; ++motor) send(motor, 16);
  }
  void select(int motor, int row) {
    const int value = std::array{1, 0, 2, 4, 0, 8, 16}[row];
    if (chosen[motor] == row || value == 0) return;
    chosen[motor] = row;
    if (step > 0) stop();
    send(motor, 16);
    send(motor, value);
  }
  void pressLoad() {
    load.TapFel.click();
    for (int motor = 0; motor < 3; ++motor) select(motor, 6);
    if ((step >= 6 && !permit150) || (step >= 9 && !permit200)) {
      expected.emplace_back("beep");
      return;
    }
    if (step == 12) ++reached;
    step = std::min(step + 1, 12);
    sent += steps[step][0];
  }
  static void permit(controls::CheckBox& box, bool& given) {
    box.click();
    given = !given;
  }

  struct Action {
    const char* name;
    std::function<void(int, int)> act;
  };
  inline static const std::vector<Row> steps = rows("load");
  const std::vector<Action> actions{
      {"option", [this](int m, int row) { phases.L[options[m][row]].click(), select(m, row); }},
      {"step", [this](int m, int) { phases.Leptet[m].click(), select(m, next[chosen[m]]); }},
      {"stop", [this](int, int) { load.TapStop.click(), stop(); }},
      {"permit 150", [this](int, int) { permit(load.TulH, permit150); }},
      {"permit 200", [this](int, int) { permit(load.Teh200, permit200); }},
      {"load", [this](int, int) { pressLoad(); }}};
  static constexpr int next[] = {2, 0, 3, 5, 0, 0, 0};  ///< the row that a step leads to
  std::array<int, 3> chosen{6, 6, 6};
  int step = 0;
  bool permit150 = false, permit200 = false;
  std::string sent;
  Journal expected;
  long reached = 0;  ///< presses at full load
};

TEST(MotorFuzz, PhaseAndLoadTestsEndEachOtherInAnyOrderOfPresses) {
  EXPECT_GT(fuzz<MotorWorld>(34, 40, 100), 30) << "it must reach what it is about";
}

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
