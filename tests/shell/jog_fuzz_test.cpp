#include <gtest/gtest.h>
#include <set>

#include "support/fuzz.h"
#include "support/program.h"

namespace monitra::shell {
namespace {

using namespace support;

/// The program, and what must be on its ports and on the tab "Teszt" after each of the user's
/// actions, told again in a few lines.
struct JogWorld : Program {
  JogWorld() {
    registers.values = levels;
    lap.Form_Load();
  }

  testing::AssertionResult act(std::uint32_t step, std::string& name) {
    const Action& action = actions[std::min<std::size_t>(step % 20, actions.size() - 1)];
    const int i = static_cast<int>(step >> 16) % action.choices;
    name = action.name + (" " + std::to_string(i)) + ", tick";
    journal.clear();
    expected.clear();
    action.act(i);
    tick();
    testing::AssertionResult result = same(journal, expected);
    const auto check = [&result](bool right, const char* what) {
      if (result && !right) result = testing::AssertionFailure() << "wrong: " << what;
    };
    check(lap.jog.Impulzus.Value == on && lap.jog.Timer1.Enabled == on, "generator");
    check(lap.Esemeny.Caption.get().empty() == !on, "what the status line tells of it");
    check(lap.jog.SpindleGomb.Enabled == on && lap.jog.SpindleGomb.Value == spindle, "spindle");
    for (int n = 0; n < 6; ++n) {
      check(lap.jog.Mozg[n].Enabled == on && lap.jog.Mozg[n].Held == held.contains(n), "button");
    }
    for (int n = 0; n < 9; ++n) check(lap.port.Bitcim[n].Enabled == !on, "box");
    return result;
  }

  void put(int address, int value) {
    levels[address] = static_cast<std::uint8_t>(value);
    expected.push_back("w" + hex(address) + "=" + hex(value));
  }
  void stop() {
    on = spindle = false;
    held.clear();
    flags.clear();
  }
  void send(controls::PushButton& button, bool zeros) {
    int bits = 0;
    for (int n = 0; n < 9; ++n) bits |= !zeros && lap.port.Bitcim[n].Checked ? 1 << n : 0;
    button.click();
    stop();
    used = selected;
    put(used, bits & 0xFF);
    put(used + 2, bits > 0xFF ? 2 : 0);
  }
  void tick() {
    lap.jog.Timer1.tick();
    if (!on || rate == "2000") return;
    expected.push_back("r" + hex(used + 2));
    put(used + 2, spindle ? levels[used + 2] & ~2 : levels[used + 2] | 2);
    if (flags.empty()) return;
    constexpr int steps[2][3] = {{0x80, 0x02, 0x40}, {0x40, 0x10, 0x02}};
    constexpr int directions[2][3] = {{0x10, 0x20, 0x04}, {0x04, 0x20, 0x80}};
    const int first = *flags.begin();
    const int direction = first % 2 == 0 ? directions[v4x][first / 2] : 0;
    for (int n = 0; direction != 0 && n < 3; ++n) put(used, direction);
    for (int n = 0; n < 3; ++n) put(used, direction | steps[v4x][first / 2]);
    for (int n = 0; n < 2; ++n) put(used, direction);
    ++reached;
  }

  struct Action {
    const char* name;
    int choices;
    std::function<void(int)> act;
  };
  const std::vector<Action> actions{
      {"release", 7,
       [this](int i) {
         i == 6 ? lap.jog.releaseAll() : lap.jog.Mozg[i].release();
         if (i == 6 ? !std::exchange(held, {}).empty() : held.erase(i) != 0) flags.clear();
       }},
      {"generator", 1,
       [this](int) { lap.jog.Impulzus.click(), used = selected, on ? stop() : void(on = true); }},
      {"rate", 3,
       [this](int i) {
         const std::string text = std::array{"100", "1999", "2000"}[i];
         lap.jog.Seb.type(text);
         if (std::exchange(rate, text) != text) stop();
       }},
      {"send the bits", 1, [this](int) { send(lap.bits.Kuld, false); }},
      {"send zeros", 1, [this](int) { send(lap.bits.Torles, true); }},
      {"box", 9, [this](int i) { lap.port.Bitcim[i].click(); }},
      {"invert", 3, [this](int i) { lap.jog.Invert[i].click(); }},
      {"spindle", 1, [this](int) { lap.jog.SpindleGomb.click(), spindle = on && !spindle; }},
      {"tab", 2, [this](int i) { lap.SSTab1.Tab = i; }},
      {"focus on the tabs", 1, [this](int) { lap.SSTab1.GotFocus.raise(), stop(); }},
      {"board", 2,
       [this](int i) {
         v4x = i == 1;
         (v4x ? lap.port.Mpcb40 : lap.port.Mpcb32).click();
         expected.push_back(std::string("set Monitra Setup/Setup.PCB=") + (v4x ? "40" : "32"));
       }},
      {"port", 3,
       [this](int i) {
         lap.port.LPT.select(i), selected = std::array{0x378, 0x278, 0x3BC}[i];
       }},
      {"press", 6, [this](int i) {
         lap.jog.Mozg[i].press();
         if (on) held.insert(i), flags.insert(lap.jog.Invert[i / 2].Checked ? i ^ 1 : i);
       }}};
  bool on = false, spindle = false, v4x = true;
  std::string rate = "100";
  int selected = 0x378, used = 0;  ///< data registers; that of control bits is 2 higher
  std::set<int> held, flags;
  std::map<std::int32_t, std::uint8_t> levels{{0x37A, 0xFD}, {0x27A, 0xF0}, {0x3BE, 2}};
  Journal expected;
  long reached = 0;  ///< pulses
};

TEST(JogFuzz, NoOrderOfEventsGivesAPulseWithoutAHeldButtonAndTheGeneratorOn) {
  EXPECT_GT(fuzz<JogWorld>(20, 300, 300), 2000) << "it must reach what it is about";
}

}  // namespace
}  // namespace monitra::shell
