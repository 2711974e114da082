#include "ports/printer_ports.h"
#include "settings/json_settings.h"
#include "store/pwm_format.h"
#include "support/fake_driver.h"
#include "support/image.h"
#include "support/program.h"

namespace monitra::shell {
namespace {

using namespace support;

/// The ports of the PC, which tell where a message begins and ends.
struct MarkedPorts : ports::PrinterPorts {
  using PrinterPorts::PrinterPorts;
  void markMessage(bool begins) override { marked(begins), PrinterPorts::markMessage(begins); }
  std::function<void(bool)> marked;
};

const std::string before = "a Setup of somebody's\r\n";
/// More than is read or written at once.
const std::string image = [] {
  std::string lines;
  for (int n = 0; n < 140; ++n) lines += wordRecord(0, std::vector<int>(127)) + "\n";
  return lines + Block().text() + closingRecord + "\n";
}();

/// The program in front of real files, of settings and of a port of its own. Of the calls to these
/// the nth one fails, and all behind it if it is for good.
struct World : Program, platform::SettingsStore {
  World() {
    config.SaveSetting("Monitra Setup", "Setup", "PCB", "40");
    files.fault = [this](FaultyFiles::Call) {
      return fails() ? platform::Failure::DiskFull : platform::Failure::None;
    };
    ports.marked = [this](bool begins) {
      if (begins) messages.emplace_back();
      inMessage = begins;
    };
    driver.found = {{0, 0x378}};
    driver.fails = [this] { return fails(); };
    scratch.write("regi.pwm", before);
    scratch.write("fw.hex", image);
  }
  bool fails() {
    ++calls;
    return nth > 0 && (forGood ? calls >= nth : calls == nth);
  }
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override {
    return fails() ? fallback : config.GetSetting(application, section, key, fallback);
  }
  void SaveSettings(const std::string& application, const std::string& section,
                    const Entries& entries) override {
    if (!fails()) config.SaveSettings(application, section, entries);
  }
  /// Of the data pins only the levels of the serial line count.
  void drive(const std::string& told) {
    if (!told.starts_with("0D=")) return;
    level = levelsOf(told) & 0xA0;
    if (inMessage) messages.back() += hex(level)[0];
  }

  void choose(const char* file) { dialog.path = scratch.path(file); }
  void type(int value) { lap.setup.FolLe[0].Value = value; }
  std::string line() const { return lap.Esemeny.Caption; }
  bool told() const {
    const auto isBox = [](const std::string& entry) { return entry.starts_with("box "); };
    return !line().empty() || std::ranges::any_of(journal, isBox);
  }
  /// A save that says so has gone well; else what the file held before is there, or told where.
  bool savedOrKept(const char* file, const std::string& content) {
    const std::string &copy = lap.setupFiles().keptCopy(), now = scratch.read(file);
    std::string wanted;
    for (const auto& text : store::pwmTexts(lap.setup, lap.kozos).records) wanted += text + "\r\n";
    if (line().starts_with("Mentve")) return now == wanted;
    const bool kept = content.empty() || (!copy.empty() && scratch.read(copy) == content);
    return told() &&
           (now == content || now == wanted || (kept && (ended || line().ends_with(copy))));
  }
  std::string stored(const char* key) {
    return config.GetSetting("Monitra Setup", "Setup", key, "");
  }

  long calls = 0, nth = 0;
  int level = 0;
  bool forGood = false, inMessage = false, ended = false;
  /// The levels of the serial line in each, a digit each.
  std::vector<std::string> messages;
  settings::JsonSettings config{scratch.path("config")};
  FakeDriver driver{[this](auto& what) { drive(what); }};
  MarkedPorts ports{{&driver}, {scratch.path("run"), "boot"}, [this] { return registers.now(); }};
  Lap lap{{ports, ports, registers, box, remedies, dialog, files, codePage, *this, archive,
           identity, beep, [this] { ended = true; }}};
};

struct Operation {
  const char* name;
  std::function<void(World&)> ahead, act;
  std::function<bool(World&)> holds = [](World&) { return true; };  ///< whatever has failed
};

const auto start = [](World& world) { world.lap.Form_Load(); };
const Operation operations[] = {
    {"start", [](World&) {}, start,
     [](World& w) { return !w.lap.PortAllapot.Caption.get().empty(); }},
    {"open", start,
     [](World& w) {
       w.dialog.path = w.scratch.write("a.pwm", "7\r\n8\r\n");
       w.lap.MFSetNyit.click();
     },
     [](World& w) { return w.told() && w.scratch.read("a.pwm") == "7\r\n8\r\n"; }},
    {"save", start, [](World& w) { w.choose("uj.pwm"), w.lap.MFSetMent.click(); },
     [](World& w) { return w.savedOrKept("uj.pwm", ""); }},
    {"save over a file", start,
     [](World& w) { w.type(9), w.choose("regi.pwm"), w.lap.MFSetMent.click(); },
     [](World& w) { return w.savedOrKept("regi.pwm", before); }},
    {"upload", start, [](World& w) { w.lap.setup.Letolt.click(); },
     [](World& w) {
       return w.line().starts_with("Kiküldve") ? w.messages[0].size() == 480 : w.told();
     }},
    {"frame", start, [](World& w) { w.lap.load.TapFel.click(); }},
    {"generator", start,
     [](World& w) {
       w.lap.jog.Impulzus.click();
       w.lap.jog.Mozg[0].press();
       for (int n = 0; n < 3; ++n) w.lap.jog.Timer1.tick();
     }},
    {"read a firmware", start, [](World& w) { w.choose("fw.hex"), w.lap.openFirmware(); },
     [](World& w) {
       const bool read = w.lap.setup.FolLe[0].Value == 32 && w.stored("PCB") == "40";
       return w.line().starts_with("Beolvasva") ? read : w.told();
     }},
    {"patch a firmware",
     [](World& w) { start(w), w.choose("fw.hex"), w.lap.openFirmware(), w.type(9); },
     [](World& w) { w.choose("uj.hex"), w.lap.saveFirmware(); },
     [](World& w) {
       const auto lines = std::ranges::count(w.scratch.read("uj.hex"), '\n');
       return w.scratch.read("fw.hex") == image && w.told() &&
              (!w.line().starts_with("Mentve") || lines == std::ranges::count(image, '\n'));
     }},
    {"choose a board", start, [](World& w) { w.lap.port.Mpcb32.click(); },
     [](World& w) { return w.stored("PCB") == "40" || w.stored("PCB") == "32"; }},
    {"end", [](World& w) { start(w), w.lap.setup.FolLe[0].pressUp(), w.choose("regi.pwm"); },
     [](World& w) { w.lap.Form_Unload(); },
     [](World& w) {
       const bool whole = w.stored("LPT").empty() || w.stored("Inv2") == "0";
       return w.savedOrKept("regi.pwm", before) && whole && w.stored("PCB") == "40";
     }}};

/// Runs an operation and the end behind it with this fault, and checks what must hold in any case.
/// A message is whole or was cut short; where one ahead of it was the line is put to idle first.
void run(const Operation& operation, long nth, bool forGood, long& calls,
         std::vector<std::string>& whole) {
  World world;
  operation.ahead(world);
  world.journal.clear();
  world.messages.clear();
  world.calls = 0, world.nth = nth, world.forGood = forGood;
  operation.act(world);
  if (nth == 0) calls = world.calls;
  EXPECT_TRUE(operation.holds(world)) << world.line();
  world.lap.endWithoutQuestion();
  EXPECT_TRUE(world.ended);
  if (nth == 0) whole = world.messages;
  ASSERT_GE(world.messages.size(), whole.size());
  for (std::size_t n = 0; n < world.messages.size(); ++n) {
    const std::string &message = world.messages[n], &as = whole[n < whole.size() ? n : n - 3];
    EXPECT_TRUE(as.starts_with(message) || (message[0] == '0' && as.starts_with(message.substr(1))))
        << "message " << n;
    const bool off = n + 3 >= world.messages.size();
    EXPECT_TRUE(!off || forGood || message.size() >= as.size()) << "left on";
  }
  EXPECT_TRUE(forGood || world.level == 0) << "not idle";
}

TEST(FailEachCall, NothingIsLostOrLeftOnWhateverFailsOnceOrForGood) {
  for (const Operation& operation : operations) {
    std::vector<std::string> whole;
    long calls = 0;
    for (long nth = 0; nth <= calls && !HasFailure(); ++nth) {
      for (const bool forGood : {false, true}) {
        SCOPED_TRACE(operation.name + (" call " + std::to_string(nth)) + (forGood ? " on" : ""));
        run(operation, nth, forGood, calls, whole);
      }
    }
    EXPECT_GT(calls, 0) << operation.name;
    std::cout << operation.name << ": each of " << calls << " calls failed, once and for good\n";
  }
}

}  // namespace
}  // namespace monitra::shell
