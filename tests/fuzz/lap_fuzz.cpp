#include <cmath>
#include <set>
#include <sstream>

#include "fuzz/setup_world.h"
#include "support/rows.h"

namespace monitra::fuzz {
namespace {

/// What the user can do in the window, and what must be on the ports, on the tabs "PC-Link" and
/// "Teszt" and in the preferences after it, told again in a few lines. A line of the input is an
/// action: the first letter of its name, a digit that chooses among its controls, and a text, in
/// which '/' ends a line.
struct LapWorld : SetupWorld {
  LapWorld() { registers.values = levels; }

  void act(std::string line) {
    line.resize(std::max<std::size_t>(line.size(), 2), '0');
    const auto letter = [](const Action& action) { return action.name[0]; };
    const auto action = std::ranges::find(actions, line[0], letter);
    if (action == actions.end()) return;
    const int i = static_cast<unsigned char>(line[1] - '0') % action->choices;
    text = line.substr(2);
    std::ranges::replace(text, '/', '\n');
    told += action->name + " " + std::to_string(i) + " " + text + "\n";
    const bool wasOn = on;
    expected = journal = {"w" + hex(selected) + "=" + hex(registers.values[selected])};
    box.answers.clear();
    dialog.path.reset();
    action->act(i);
    if (!ended) tick();
    Journal seen = decoded(journal, clock());
    // Without boxes, dialogs and preferences, which have a word ahead of a blank.
    std::erase_if(seen, [](auto& entry) { return entry.find(' ') < 5 && entry[0] > '9'; });
    const testing::AssertionResult right = same(seen, expected);
    check(right && !ports.inMessage && !registers.punctual, right.message());
    const bool toldNothing = lap.Esemeny.Caption.get().empty();
    check(wasOn == on || toldNothing == (!on && line[0] != 'B'), "what is told of the generator");
    check(lap.Maromotor.On == !running.empty(), "the router's lamp");
    check(lap.OrajelMagas.On == (written.contains(selected) && (levels[selected] & clock()) != 0),
          "the clock's lamp");
    checkSetup();
    checkTests();
  }
  void checkTests() const {
    for (int n = 0; n < 6; ++n) {
      check(jog.Mozg[n].Enabled == on && jog.Mozg[n].Held == held.contains(n), "jog button");
    }
    for (int n = 0; n < 9; ++n) check(lap.port.Bitcim[n].Enabled == !on, "bit");
    for (int n = 0; n < 21; ++n) check(lap.phases.L[n].Value == (chosen[n / 7] == n), "line");
    check(jog.Impulzus.Value == on && jog.Timer1.Enabled == on && jog.Seb.Text.get() == rate &&
              jog.SpindleGomb.Enabled == on && jog.SpindleGomb.Value == spindle,
          "rate or spindle");
    check(!on || jog.Timer1.Interval == interval(), "interval");
    check(load.TulH.Checked == permits[0] && load.Teh200.Checked == permits[1], "permits");
    std::ostringstream shown;
    shown << load.Taptext.Text.get() << std::hex << " " << load.Taptext.ForeColor << " "
          << load.Figy2.BackColor << std::dec << " " << load.LEDsav.Level << " "
          << load.Figy.Enabled << " " << load.Figy2.Enabled;
    check(shown.str() == loads[step][1], "load " + shown.str());
  }

  void put(int address, int value) {
    expected.push_back("w" + hex(address) + "=" + hex(value));
    levels[address] = static_cast<std::uint8_t>(value);
    written.insert(address);
    if ((address & 2) != 0)
      (value & 2) != 0 ? running.erase(address) : running.insert(address).second;
  }
  int clock() const { return v4x ? 0x80 : 0x04; }
  void send(const std::string& bytes) {
    const bool goesOn = std::isdigit(expected.back()[0]);
    goesOn ? void(expected.back() += " " + bytes) : expected.push_back(bytes);
    levels[selected] = static_cast<std::uint8_t>(levels[selected] & ~clock());
    written.insert(selected);
  }
  /// In milliseconds; at a tie the even one.
  double interval() const { return std::nearbyint(1 / Ertek(rate) * 1000); }
  void tick() {
    jog.Timer1.tick();
    if (!on || interval() == 0) return;
    expected.push_back("r" + hex(used + 2));
    put(used + 2, spindle ? levels[used + 2] & ~2 : levels[used + 2] | 2);
    if (flags.empty()) return;
    for (const std::string& byte : pulses[*flags.begin() + (v4x ? 6 : 0)]) {
      put(used, std::stoi(byte, nullptr, 16));
    }
  }
  void stopGenerator() {
    on = spindle = false;
    held.clear();
    flags.clear();
  }
  void sendBits(bool zeros) {
    int bits = 0;
    for (int n = 0; n < 9; ++n) bits |= !zeros && lap.port.Bitcim[n].Checked ? 1 << n : 0;
    (zeros ? lap.bits.Torles : lap.bits.Kuld).click();
    stopGenerator();
    used = selected;
    put(used, bits & 0xFF);
    put(used + 2, bits > 0xFF ? 2 : 0);
  }
  void showTab(int tab) {
    const bool idle = tab == 2 && lap.SSTab1.Tab != tab;
    if (idle) expected.push_back("r" + hex(selected));
    if (idle) put(selected, registers.values[selected] & ~(v4x ? 0xA0 : 0x24));
    lap.SSTab1.Tab = tab;
  }
  void start() {
    on = true;
    used = selected;
    if (Ertek(rate) < 1) rate = "1";
  }
  void hold(int i) {
    jog.Mozg[i].press();
    if (on) held.insert(i), flags.insert(jog.Invert[i / 2].Checked ? i ^ 1 : i);
  }
  controls::SpinButton& spin(int i) {
    if (i >= 12) return i == 12 ? setup.Utfolle : setup.Turesfolle;
    return setup.FolLe[i];
  }
  void stopLoad() {
    step = 0;
    permits = {};
    send(allOff);
  }
  /// The options in the column of a motor exclude one another; those of a plus can't be selected.
  void select(int option) {
    const Row& line = lines[option];
    if (line[1] == "0" || std::exchange(chosen[option / 7], option) == option) return;
    if (step > 0) stopLoad();
    send(line[0] + " 0 16 " + line[0] + " 0 " + line[1]);
  }
  void selectNext(int motor) { select(std::stoi(lines[chosen[motor]][2])); }
  void pressLoad() {
    for (const int off : {6, 7, 14}) select(off);
    load.TapFel.click();
    const bool permitted = step < 6 || (permits[0] && (step < 9 || permits[1]));
    step = permitted ? std::min(step + 1, 12) : step;
    permitted ? send(loads[step][0]) : expected.push_back("beep");
  }
  void upload(bool ready) {
    if (!ready) box.answers = {platform::BoxAnswer::No};
    setup.Letolt.click();
    if (!ready || !setup.MBKTarso.Checked) return;
    for (const int byte : link::setupMessage(setup.spinValues())) send(std::to_string(byte));
  }
  /// Fields may get back the spelling that a file gave them.
  void goBack(int way) {
    opened = true;
    if (way == 0) lap.undo();
    if (way == 1) lap.redo();
    if (way == 2) lap.revisions.undo.close();
    if (way == 3) lap.copyAxis(static_cast<int>(text.size() % 3));
    if (way == 4) lap.revert(revisions::Comparison::saved, revisions::fieldsOfAxis(0));
  }
  void end(int way) {
    box.answers = {way == 0 ? platform::BoxAnswer::No : platform::BoxAnswer::Yes};
    dialog.path = scratch.path("end.pwm");
    way == 2 ? lap.endWithoutQuestion() : lap.MFkilepes.click();
    lap.endWithoutQuestion();
    held.clear();
    send(allOff);
    expected.emplace_back("end");
    ended = true;
    cleared = way == 1;
    check(scratch.read("end.pwm").empty() == (way != 1 || !modified), "saved at the end");
  }

  struct Action {
    std::string name;
    int choices;
    std::function<void(int)> act;
  };
  const std::vector<Action> actions{
      {"up", 14, [this](int i) { spin(i).pressUp(), std::erase(journal, "beep"); }},
      {"down", 14, [this](int i) { spin(i).pressDown(), std::erase(journal, "beep"); }},
      {"type", 3, [this](int i) { boxes[i]->type(codePage.toUtf8(text)); }},
      {"mode", 6, [this](int i) { setup.Funkcio.select(i); }},
      {"whole steps", 3, [this](int i) { wholeSteps[i]->click(); }},
      {"constant", 2, [this](int i) { (i ? setup.MBTValtozo : setup.MBTallando).click(); }},
      {"edition", 2, [this](int i) { (i ? setup.MBKTarso : setup.MBKVilor).click(); }},
      {"open", 1, [this](int) { open("a.pwm", text); }},
      {"image", 1, [this](int) { open("a.hex", text); }},
      {"keep", 1, [this](int) { save(); }},
      {"Upload", 2, [this](int i) { upload(i == 1); }},
      {"line", 21, [this](int i) { lap.phases.L[i].click(), select(i); }},
      {"next", 3, [this](int i) { lap.phases.Leptet[i].click(), selectNext(i); }},
      {"Load", 1, [this](int) { pressLoad(); }},
      {"Stop", 1, [this](int) { load.TapStop.click(), stopLoad(); }},
      {"permit", 2, [this](int i) { (i ? load.Teh200 : load.TulH).click(), permits[i] ^= true; }},
      {"generator", 1, [this](int) { jog.Impulzus.click(), on ? stopGenerator() : start(); }},
      {"Rate", 1,
       [this](int) {
         jog.Seb.type(text);
         if (std::exchange(rate, jog.Seb.Text.get()) != jog.Seb.Text.get()) stopGenerator();
       }},
      {"hold", 6, [this](int i) { hold(i); }},
      {"release", 6,
       [this](int i) { jog.Mozg[i].release(), held.erase(i) ? flags.clear() : void(); }},
      {"Invert", 3, [this](int i) { jog.Invert[i].click(); }},
      {"spindle", 1, [this](int) { jog.SpindleGomb.click(), spindle = on && !spindle; }},
      {"bit", 9, [this](int i) { lap.port.Bitcim[i].click(); }},
      {"Bits", 2, [this](int i) { sendBits(i == 1); }},
      {"Tab", 4, [this](int i) { showTab(i); }},
      {"focus", 1, [this](int) { lap.SSTab1.GotFocus.raise(), stopGenerator(); }},
      {"Port", 3, [this](int i) { lap.port.LPT.select(i), selected = addresses[i]; }},
      {"Version", 2,
       [this](int i) { (i ? lap.port.Mpcb40 : lap.port.Mpcb32).click(), v4x = i == 1; }},
      {"Zback", 5, [this](int i) { goBack(i); }},
      {"quit", 3, [this](int i) { end(i); }}};
  controls::TextBox* const boxes[3]{&setup.Ut, &setup.Spm, &setup.Tures};
  controls::CheckBox* const wholeSteps[3]{&setup.Xegesz, &setup.Yegesz, &setup.Zegesz};
  static constexpr int addresses[]{0x378, 0x278, 0x3BC};
  bench::JogPanel& jog = lap.jog;
  bench::LoadPanel& load = lap.load;
  inline static const auto loads = rows("load"), lines = rows("lines"), pulses = rows("pulses");
  const std::string allOff = "99 0 16 110 0 16 120 0 16";
  std::array<int, 3> chosen{6, 7, 14};
  std::array<bool, 2> permits{};
  int step = 0;  ///< of the load
  bool on = false, spindle = false, v4x = true, ended = false;
  std::string rate = "100", text;
  int selected = 0x378, used = 0;  ///< data registers; that of control bits is 2 higher
  std::set<int> held, flags, written{0x378}, running;
  std::map<std::int32_t, std::uint8_t> levels{{0x378, 0x5A}, {0x37A, 0xFD}, {0x27A, 0xF0}};
  Journal expected;
};

}  // namespace
}  // namespace monitra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  monitra::fuzz::LapWorld world;
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  for (std::string line; !world.ended && std::getline(lines, line);) world.act(line);
  if (!world.ended) world.act("quit");
  return 0;
}
