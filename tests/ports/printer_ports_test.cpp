#include "ports/printer_ports.h"

#include "support/journal.h"
#include "support/scratch.h"

namespace monitra::ports {
namespace {

using namespace support;
using platform::PortState;
using Kind = PortState::Kind;
using std::chrono::milliseconds;

/// A driver whose ports a test makes and takes away. Tells, with blanks between, "look0", "open0",
/// "open0(E)" where a control value is to be put back, "0D=20" for a write, "0D?" for a read,
/// "close0".
struct FakeDriver : PortDriver {
  struct Port : OpenPort {
    Port(FakeDriver& of, const FoundPort& found) : driver(of), port(found) {}
    ~Port() override { driver.tell("close", port); }
    std::optional<std::uint8_t> read(Register which) override {
      driver.tell("", port, which == Register::Data ? "D?" : "C?");
      return driver.answers ? std::optional(values[which]) : std::nullopt;
    }
    bool write(Register which, std::uint8_t value) override {
      driver.tell("", port, (which == Register::Data ? "D=" : "C=") + hex(value));
      values[which] = value;
      return driver.answers;
    }
    bool present() override { return std::ranges::count(driver.found, port) > 0; }

    FakeDriver& driver;
    FoundPort port;
    std::map<Register, std::uint8_t> values;
  };

  FakeDriver(std::string& journal, std::string ownName) : told(journal), name(std::move(ownName)) {}

  std::vector<FoundPort> find() override { return found; }
  PortState none() const override { return {}; }
  PortState look(const FoundPort& port) override {
    tell(name + "look", port);
    return {.kind = refused.contains(port.number) ? refused[port.number] : Kind::Untried};
  }
  Opening open(const FoundPort& port, std::optional<std::uint8_t> control) override {
    tell(name + "open", port, control ? "(" + hex(*control) + ")" : "");
    if (refused.contains(port.number)) return {nullptr, {.kind = refused[port.number]}};
    return {std::make_unique<Port>(*this, port), {.kind = Kind::Kernel}};
  }
  void tell(const std::string& what, const FoundPort& port, const std::string& how = {}) {
    told += (told.empty() ? "" : " ") + what + std::to_string(port.number) + how;
  }

  std::vector<FoundPort> found;
  std::map<int, Kind> refused;
  bool answers = true;
  std::string& told;
  std::string name;
};

struct PortsOfAPc : testing::Test {
  PortsOfAPc() {
    kernel.found = {{0, 0x378}};
    ports.changed = [this] { journal += journal.empty() ? "changed" : " changed"; };
  }

  /// What an access or another try comes to, this long behind the one before.
  std::string write(std::int32_t address, int value, milliseconds later = {}) {
    now += later;
    ports.DlPortWritePortUchar(address, static_cast<std::uint8_t>(value));
    return told();
  }
  std::string read(std::int32_t address, int expected, milliseconds later = {}) {
    now += later;
    EXPECT_EQ(ports.DlPortReadPortUchar(address), expected);
    return told();
  }
  std::string tryAgain(PrinterPorts& some, std::int32_t entry = 0x378) {
    some.tryAgain(entry);
    return told();
  }
  std::string told() { return std::exchange(journal, {}); }
  Kind kind(std::int32_t entry = 0x378) { return ports.state(entry).kind; }
  PrinterPorts another() {
    return {{&kernel, &raw}, memory, [this] { return now; }};
  }

  std::string journal;
  Scratch scratch;
  FakeDriver kernel{journal, ""};
  FakeDriver raw{journal, "raw-"};
  ControlMemory memory{scratch.path("monitra"), "this-boot"};
  std::chrono::nanoseconds now = std::chrono::hours(5);
  PrinterPorts ports = another();
};

TEST_F(PortsOfAPc, APortIsOpenedAtTheFirstAccessAndHeldAndItsControlLinesKeptForTheNextRun) {
  EXPECT_EQ(kind(), Kind::Untried);
  EXPECT_EQ(told(), "look0") << "a look opens nothing";
  EXPECT_EQ(write(0x37A, 0x06), "open0 changed 0C=6");
  EXPECT_EQ(write(0x37A, 0xCE), "0C=CE");
  EXPECT_EQ(write(0x378, 0x20), "0D=20");
  EXPECT_EQ(read(0x378, 0x20), "0D?");
  EXPECT_EQ(read(0x37A, 0xCE, std::chrono::hours(1)), "0C?");
  EXPECT_EQ(tryAgain(ports), "");
  EXPECT_EQ(ports.vanished(), 0);
  PrinterPorts next = another();
  EXPECT_EQ(tryAgain(next), "open0(E)");
  kernel.found = {{0, 0x278}};
  EXPECT_EQ(tryAgain(next, 0x278), "open0") << "of this port and no other";
}

TEST_F(PortsOfAPc, AnEntryWithoutOneIsLookedForAtItsNextUseAndNeverInTheMiddleOfATransfer) {
  kernel.refused[0] = Kind::NoPermission;
  EXPECT_EQ(write(0x378, 0x20), "open0 changed");
  for (int bit = 0; bit < 1000; ++bit) {
    EXPECT_EQ(write(0x378, bit % 256, milliseconds(1)), "");
    EXPECT_EQ(read(0x378, bit % 256), "");
  }
  EXPECT_EQ(read(0x378, 999 % 256, milliseconds(99)), "");
  EXPECT_EQ(read(0x378, 999 % 256, milliseconds(100)), "open0") << "the same state is no change";
  for (int tick = 1; tick < 12; ++tick) EXPECT_EQ(write(0x37A, 0x0C, milliseconds(90)), "") << tick;
  kernel.refused.clear();
  EXPECT_EQ(write(0x37A, 0x0C, milliseconds(90)), "open0 changed 0C=C") << "once in a second";
  EXPECT_EQ(write(0x379, 7), "") << "nobody's address";
  EXPECT_EQ(read(0x379, 7), "");
  EXPECT_EQ(tryAgain(ports, 0x379), "");
  EXPECT_EQ(kind(0x379), Kind::NoPort);
  EXPECT_EQ(ports.vanished(), 1013);
}

TEST_F(PortsOfAPc, ALostPortIsFoundOutAndFoundAgain) {
  write(0x378, 0x20);
  kernel.found.clear();
  EXPECT_EQ(write(0x378, 0xA0, milliseconds(9)), "0D=A0");
  EXPECT_EQ(write(0x378, 0x21, milliseconds(1)), "close0 changed");
  EXPECT_EQ(write(0x378, 0x22, milliseconds(100)), "");
  EXPECT_EQ(kind(), Kind::Lost) << "for as long as there is none";
  kernel.refused[0] = Kind::Busy;
  kernel.found = {{0, 0x378}};
  EXPECT_EQ(tryAgain(ports), "open0 changed");
  EXPECT_EQ(kind(), Kind::Busy);
  kernel.refused.clear();
  EXPECT_EQ(tryAgain(ports), "open0 changed");
  kernel.answers = false;
  EXPECT_EQ(write(0x378, 0x55), "0D=55 close0 changed") << "a refused access is a loss as well";
  EXPECT_EQ(tryAgain(ports), "open0 changed");
  EXPECT_EQ(read(0x378, 0x55), "0D? close0 changed");
  tryAgain(ports);
  kernel.found.clear();
  EXPECT_EQ(kind(), Kind::Lost) << "who asks gets the present state";
  EXPECT_EQ(ports.vanished(), 3);
}

TEST_F(PortsOfAPc, NoPortServesTwoEntriesAndALostOneIsNeverReplacedByAnother) {
  PrinterPorts other = another();
  kernel.found = {{0, 0xD010}, {1, 0x278}, {2, 0xC000}};
  EXPECT_EQ(tryAgain(other, 0x3BC), "open2") << "one that is at no entry's address";
  EXPECT_EQ(tryAgain(other, 0x278), "open1");
  kernel.found = {{0, 0xC000}, {1, 0xD010}};
  EXPECT_EQ(write(0x278, 1), "open1 changed 1D=1") << "in whichever order they are used";
  EXPECT_EQ(write(0x378, 2), "open0 changed 0D=2");
  EXPECT_EQ(write(0x3BC, 3), "changed");
  EXPECT_EQ(kind(0x3BC), Kind::NoneLeft);
  kernel.found = {{1, 0xD010}, {2, 0x3BC}};
  EXPECT_EQ(write(0x378, 4, milliseconds(200)), "close0 changed");
  EXPECT_EQ(tryAgain(ports), "") << "another machine hangs there";
  EXPECT_EQ(kind(), Kind::Lost);
  EXPECT_EQ(write(0x3BE, 5, milliseconds(200)), "open2 changed 2C=5");
  kernel.found = {{1, 0xD010}, {2, 0x3BC}, {3, 0xC000}};
  EXPECT_EQ(write(0x378, 6, milliseconds(200)), "open3 changed 3D=6");
}

TEST_F(PortsOfAPc, NoMessageEndsOnAPortThatItDidNotBeginOn) {
  kernel.found.clear();
  EXPECT_EQ(write(0x378, 0x20), "changed") << "also where it is the state that nobody asked for";
  ports.markMessage(true);
  write(0x378, 0x20);
  kernel.found = {{0, 0x378}};
  EXPECT_EQ(write(0x378, 0xA0, std::chrono::hours(1)), "");
  EXPECT_EQ(write(0x37A, 0x0C, std::chrono::hours(1)), "");
  ports.markMessage(false);
  EXPECT_EQ(write(0x378, 0x20), "") << "nor without a pause";
  ports.markMessage(true);
  EXPECT_EQ(write(0x378, 0x21), "open0 changed 0D=21");
  kernel.found.clear();
  EXPECT_EQ(write(0x378, 0xA1, milliseconds(10)), "close0 changed");
  kernel.found = {{0, 0x378}};
  EXPECT_EQ(write(0x378, 0x20, std::chrono::hours(1)), "") << "nor where it was lost on the way";
}

TEST_F(PortsOfAPc, RegistersComeWhereTheDriverHasNoPortButNotPastWhoUsesIt) {
  raw.found = {{0, 0x378}, {1, 0x278}};
  for (const Kind refusal : {Kind::NoNode, Kind::NoPermission, Kind::Busy, Kind::Printing}) {
    const bool inUse = refusal == Kind::Busy || refusal == Kind::Printing;
    PrinterPorts fresh = another();
    kernel.refused[0] = refusal;
    told();
    EXPECT_EQ(tryAgain(fresh), inUse ? "open0" : "open0 raw-open0");
    EXPECT_EQ(fresh.state(0x378).kind, inUse ? refusal : Kind::Kernel);
  }
  raw.refused[1] = Kind::NoRegisters;
  told();
  kernel.found.clear();
  EXPECT_EQ(tryAgain(ports, 0x278), "raw-open1 changed");
  EXPECT_EQ(kind(0x278), Kind::NoPort) << "the first one's reason";
}

TEST(ControlMemory, KeepsAValueForThisRunOfThePcInAFolderOfItsOwn) {
  const Scratch scratch;
  const std::string folder = scratch.path("monitra");
  const ControlMemory memory(folder, "this-boot");
  memory.keep(0xD010, 0x0C);
  memory.keep(0x378, 0x06);
  EXPECT_EQ(memory.last(0x378), 0x06);
  EXPECT_EQ(ControlMemory(folder, "that-boot").last(0x378), std::nullopt);
  for (const char* const damaged : {"", "this-boot", "this-boot zz", "this-boot 100"}) {
    scratch.write("monitra/control-378", damaged);
    EXPECT_EQ(memory.last(0x378), std::nullopt) << damaged;
  }
  namespace fs = std::filesystem;
  fs::create_symlink(scratch.write("fontos.txt", "this-boot 05\n"), folder + "/control-278");
  memory.keep(0x278, 0x0E);
  EXPECT_EQ(scratch.read("fontos.txt"), "this-boot 05\n");
  ::setenv("XDG_RUNTIME_DIR", scratch.path().c_str(), 1);
  ControlMemory::ofUser().keep(0x3BC, 0x0E);
  EXPECT_EQ(ControlMemory::ofUser().last(0x3BC), 0x0E);
  EXPECT_TRUE(fs::exists(folder + "/control-3bc"));
  fs::permissions(folder, fs::perms::others_write, fs::perm_options::add);
  memory.keep(0xD010, 0x0E);
  EXPECT_EQ(memory.last(0xD010), 0x0C) << "nothing is kept where others can write";
}

}  // namespace
}  // namespace monitra::ports
