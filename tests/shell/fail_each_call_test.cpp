#include <map>
#include <span>

#include "ports/printer_ports.h"
#include "settings/json_settings.h"
#include "store/pwm_format.h"
#include "support/image.h"
#include "support/program.h"

namespace monitra::shell {
namespace {

using namespace support;
using platform::PortState;

/// Counts the calls of a world to files, settings and port; the nth one fails, and all behind it if
/// it says so.
struct Fault {
  bool fails() {
    ++calls;
    return nth > 0 && (forGood ? calls >= nth : calls == nth);
  }
  long calls = 0, nth = 0;
  bool forGood = false;
};

struct FaultySettings : platform::SettingsStore {
  FaultySettings(const std::string& folder, Fault& of) : real(folder), fault(of) {}
  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override {
    return fault.fails() ? fallback : real.GetSetting(application, section, key, fallback);
  }
  void SaveSettings(const std::string& application, const std::string& section,
                    const Entries& entries) override {
    if (!fault.fails()) real.SaveSettings(application, section, entries);
  }
  settings::JsonSettings real;
  Fault& fault;
};

/// The way to one port, in front of registers that keep a journal.
struct FaultyDriver : ports::PortDriver {
  struct Port : ports::OpenPort {
    explicit Port(FaultyDriver& of) : driver(of) {}
    static std::int32_t at(ports::Register which) {
      return which == ports::Register::Data ? 0x378 : 0x37A;
    }
    std::optional<std::uint8_t> read(ports::Register which) override {
      if (driver.fault.fails()) return {};
      return driver.registers.DlPortReadPortUchar(at(which));
    }
    bool write(ports::Register which, std::uint8_t value) override {
      if (driver.fault.fails()) return false;
      driver.registers.DlPortWritePortUchar(at(which), value);
      return true;
    }
    bool present() override { return !driver.fault.fails(); }
    FaultyDriver& driver;
  };

  FaultyDriver(JournalPort& lines, Fault& of) : registers(lines), fault(of) {}
  std::vector<ports::FoundPort> find() override {
    if (fault.fails()) return {};
    return {{0, 0x378}};
  }
  PortState none() const override { return {.kind = PortState::Kind::NoDriver}; }
  PortState look(const ports::FoundPort& /*port*/) override {
    return {.kind = fault.fails() ? PortState::Kind::Failed : PortState::Kind::Untried};
  }
  ports::Opening open(const ports::FoundPort& /*port*/, std::optional<std::uint8_t>) override {
    if (fault.fails()) return {nullptr, {.kind = PortState::Kind::Failed}};
    return {std::make_unique<Port>(*this), {.kind = PortState::Kind::Kernel}};
  }
  JournalPort& registers;
  Fault& fault;
};

/// The ports of the PC; "{" and "}" in the journal are a message's begin and end.
struct MarkedPorts : ports::PrinterPorts {
  MarkedPorts(Journal& of, FaultyDriver& driver, const std::string& folder, JournalPort& clock)
      : PrinterPorts({&driver}, {folder, "boot"}, [&clock] { return clock.now(); }), journal(of) {}
  void markMessage(bool begins) override {
    journal.emplace_back(begins ? "{" : "}");
    PrinterPorts::markMessage(begins);
  }
  Journal& journal;
};

const std::string before = "a Setup of somebody's\r\n";
const std::string image = Block().text() + closingRecord + "\n";

/// The program in front of real files and a port of its own, any call to which can fail.
struct World : Program {
  World() {
    settings.real.SaveSetting("Monitra Setup", "Setup", "PCB", "40");
    files.fault = [this](FaultyFiles::Call) {
      return fault.fails() ? platform::Failure::DiskFull : platform::Failure::None;
    };
    scratch.write("regi.pwm", before);
    scratch.write("fw.hex", image);
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
    return settings.real.GetSetting("Monitra Setup", "Setup", key, "");
  }

  Fault fault;
  FaultySettings settings{scratch.path("config"), fault};
  FaultyDriver driver{registers, fault};
  MarkedPorts ports{journal, driver, scratch.path("run"), registers};
  bool ended = false;
  Lap lap{{ports, ports, registers, box, remedies, dialog, files, codePage, settings, identity,
           beep, [this] { ended = true; }}};
};

struct Operation {
  const char* name;
  std::function<void(World&)> ahead, act;
  std::function<bool(World&)> holds;  ///< what must, whatever has failed
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
       const auto writes = std::ranges::count_if(
           w.journal, [](const std::string& entry) { return entry.starts_with("w"); });
       return w.line().starts_with("Kiküldve") ? writes == 480 : w.told();
     }},
    {"frame", start, [](World& w) { w.lap.load.TapFel.click(); }, [](World&) { return true; }},
    {"generator", start,
     [](World& w) {
       w.lap.jog.Impulzus.click();
       w.lap.jog.Mozg[0].press();
       for (int n = 0; n < 3; ++n) w.lap.jog.Timer1.tick();
     },
     [](World&) { return true; }},
    {"read a firmware", start, [](World& w) { w.choose("fw.hex"), w.lap.openFirmware(); },
     [](World& w) {
       const bool read = w.lap.setup.FolLe[0].Value == 32 && w.stored("PCB") == "40";
       return w.line().starts_with("Beolvasva") ? read : w.told();
     }},
    {"patch a firmware",
     [](World& w) { start(w), w.choose("fw.hex"), w.lap.openFirmware(), w.type(9); },
     [](World& w) { w.choose("uj.hex"), w.lap.saveFirmware(); },
     [](World& w) {
       const bool whole = w.scratch.read("uj.hex").ends_with("FF\r\n");
       return w.scratch.read("fw.hex") == image && w.told() &&
              (!w.line().starts_with("Mentve") || whole);
     }},
    {"choose a board", start, [](World& w) { w.lap.port.Mpcb32.click(); },
     [](World& w) { return w.stored("PCB") == "40" || w.stored("PCB") == "32"; }},
    {"end", [](World& w) { start(w), w.lap.setup.FolLe[0].pressUp(), w.choose("regi.pwm"); },
     [](World& w) { w.lap.Form_Unload(); },
     [](World& w) {
       const bool whole = w.stored("LPT").empty() || w.stored("Inv2") == "0";
       return w.savedOrKept("regi.pwm", before) && whole && w.stored("PCB") == "40";
     }}};

/// Levels of the serial line, one behind the other.
using Levels = std::vector<int>;

/// Those that reached the port in each message.
std::vector<Levels> messagesIn(const Journal& journal) {
  std::vector<Levels> messages;
  bool inside = false;
  for (const std::string& entry : journal) {
    if (entry == "{") messages.emplace_back();
    if (entry == "{" || entry == "}") inside = entry == "{";
    if (inside && entry.starts_with("w378=")) messages.back().push_back(levelsOf(entry) & 0xA0);
  }
  return messages;
}

/// Whether it is whole or was cut short, and nothing else; where one ahead of it was cut short the
/// line has been put to idle first.
bool isPartOf(const Levels& message, const Levels& whole) {
  const auto begins = [&whole](std::span<const int> part) {
    return std::ranges::mismatch(part, whole).in1 == part.end();
  };
  const std::span<const int> all(message);
  return begins(all) || (all.front() == 0 && begins(all.subspan(1)));
}

/// Runs an operation and the end behind it with this fault, and checks what must hold in any case.
void run(const Operation& operation, long nth, bool forGood, long& calls,
         std::vector<Levels>& whole) {
  World world;
  operation.ahead(world);
  world.journal.clear();
  world.fault = {0, nth, forGood};
  operation.act(world);
  if (calls == 0) calls = world.fault.calls;
  EXPECT_TRUE(operation.holds(world)) << world.line();
  world.lap.endWithoutQuestion();
  EXPECT_TRUE(world.ended);
  const std::vector<Levels> messages = messagesIn(world.journal);
  if (nth == 0) whole = messages;
  ASSERT_GE(messages.size(), whole.size());
  for (std::size_t n = 0; n < messages.size(); ++n) {
    const std::size_t as = n < whole.size() ? n : n - 3;
    EXPECT_TRUE(isPartOf(messages[n], whole[as])) << "message " << n;
    const bool off = n + 3 >= messages.size();
    EXPECT_TRUE(!off || forGood || messages[n].size() >= whole[as].size()) << "left on";
  }
  EXPECT_TRUE(forGood || (world.registers.values[0x378] & 0xA0) == 0) << "not idle";
}

TEST(FailEachCall, NothingIsLostOrLeftOnWhateverFailsOnceOrForGood) {
  for (const Operation& operation : operations) {
    std::vector<Levels> whole;
    long calls = 0;
    run(operation, 0, false, calls, whole);
    for (long nth = 1; nth <= calls; ++nth) {
      for (const bool forGood : {false, true}) {
        SCOPED_TRACE(operation.name + (" call " + std::to_string(nth)) + (forGood ? " on" : ""));
        run(operation, nth, forGood, calls, whole);
      }
      if (testing::Test::HasFailure()) return;
    }
    std::cout << operation.name << ": each of its " << calls
              << " calls failed, once and for good\n";
  }
}

}  // namespace
}  // namespace monitra::shell
