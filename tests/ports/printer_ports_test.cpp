#include "ports/printer_ports.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include "support/scratch.h"

namespace monitra::ports {
namespace {

using platform::PortState;
using Kind = PortState::Kind;
using Journal = std::vector<std::string>;
using std::chrono::milliseconds;

TEST(PortFor, GivesAnEntryItsOwnPortOrTheNextOfThoseAtNoEntrysAddress) {
  const struct {
    std::vector<FoundPort> found;
    std::vector<std::int32_t> waiting;
    const char* numbers;  ///< of the ports of the three entries; "-" for none
  } cases[] = {
      {{}, {0x378, 0x278, 0x3BC}, "- - - "},
      {{{0, 0x378}}, {0x378, 0x278, 0x3BC}, "0 - - "},
      {{{0, 0x278}, {1, 0x3BC}}, {0x378, 0x278, 0x3BC}, "- 0 1 "},
      {{{0, 0xD010}}, {0x378, 0x278, 0x3BC}, "0 - - "},
      {{{0, 0xD010}, {1, 0x378}}, {0x378, 0x278, 0x3BC}, "1 0 - "},
      {{{2, 0xD010}, {5, 0xC000}}, {0x378, 0x278, 0x3BC}, "2 5 - "},
      {{{0, 0xD010}, {1, 0x278}, {2, 0xC000}, {3, 0xE000}}, {0x378, 0x278, 0x3BC}, "0 1 2 "},
      {{{1, 0xC000}}, {0x278, 0x3BC}, "- 1 - "},
      {{{1, 0xC000}}, {0x3BC}, "- - 1 "},
      {{{0, 0x378}, {1, 0xC000}}, {0x278}, "0 1 - "},
  };
  for (const auto& given : cases) {
    std::string numbers;
    for (const std::int32_t entry : entryAddresses) {
      const auto port = portFor(entry, given.found, given.waiting);
      numbers += (port ? std::to_string(port->number) : "-") + " ";
    }
    EXPECT_EQ(numbers, given.numbers) << given.found.size() << " ports found";
  }
}

std::string hex(int value) {
  std::ostringstream text;
  text << std::hex << std::uppercase << value;
  return text.str();
}

/// A driver whose ports a test makes and takes away: "open 0", "open 0 C=6" where a control value
/// is to be put back, "0D=20" for a write, "0D?" for a read, "close 0".
class FakeDriver : public PortDriver {
 public:
  explicit FakeDriver(Journal& journal, std::string name = {})
      : journal_(journal), name_(std::move(name)) {}

  std::vector<FoundPort> find() override { return found; }
  PortState none() const override { return {.kind = ifNone}; }
  PortState look(const FoundPort& port) override {
    journal_.push_back(name_ + "look " + std::to_string(port.number));
    return stateOf(port, Kind::Untried);
  }
  Opening open(const FoundPort& port, std::optional<std::uint8_t> lastControl) override {
    journal_.push_back(name_ + "open " + std::to_string(port.number) +
                       (lastControl ? " C=" + hex(*lastControl) : ""));
    Opening opening{nullptr, stateOf(port, Kind::Kernel)};
    if (opening.state.inUse()) opening.port = std::make_unique<Port>(*this, port);
    return opening;
  }

  std::vector<FoundPort> found;
  std::map<int, Kind> refused;
  Kind ifNone = Kind::NoPort;
  bool answers = true;

 private:
  class Port : public OpenPort {
   public:
    Port(FakeDriver& driver, const FoundPort& port) : driver_(driver), port_(port) {}
    ~Port() override { tell("close " + std::to_string(port_.number)); }

    std::optional<std::uint8_t> read(Register which) override {
      tell(name(which) + "?");
      if (!driver_.answers) return {};
      return values_[which];
    }
    bool write(Register which, std::uint8_t value) override {
      tell(name(which) + "=" + hex(value));
      values_[which] = value;
      return driver_.answers;
    }
    bool present() override { return std::ranges::count(driver_.found, port_) > 0; }

   private:
    std::string name(Register which) const {
      return std::to_string(port_.number) + (which == Register::Data ? "D" : "C");
    }
    void tell(const std::string& what) const { driver_.journal_.push_back(driver_.name_ + what); }

    FakeDriver& driver_;
    FoundPort port_;
    std::map<Register, std::uint8_t> values_;
  };

  PortState stateOf(const FoundPort& port, Kind usable) const {
    const auto known = refused.find(port.number);
    return {.kind = known == refused.end() ? usable : known->second, .address = port.address};
  }

  Journal& journal_;
  std::string name_;
};

struct PortsOfAPc : testing::Test {
  PortsOfAPc() {
    kernel.found = {{0, 0x378}};
    ports.changed = [this] { journal.emplace_back("changed"); };
  }

  void write(std::int32_t address, int value) {
    ports.DlPortWritePortUchar(address, static_cast<std::uint8_t>(value));
  }
  int read(std::int32_t address) { return ports.DlPortReadPortUchar(address); }
  Kind kind(std::int32_t entry = 0x378) { return ports.state(entry).kind; }
  Journal told() { return std::exchange(journal, {}); }

  Journal journal;
  support::Scratch scratch;
  FakeDriver kernel{journal};
  FakeDriver raw{journal, "raw "};
  ControlMemory memory{scratch.path("monitra"), "this-boot"};
  std::chrono::nanoseconds now = std::chrono::hours(5);
  PrinterPorts ports{{&kernel, &raw}, memory, [this] { return now; }};
};

TEST_F(PortsOfAPc, APortIsOpenedAtTheFirstAccessAndHeld) {
  EXPECT_EQ(kind(), Kind::Untried);
  EXPECT_EQ(told(), (Journal{"look 0"})) << "a look opens nothing";
  write(0x378, 0x20);
  write(0x37A, 0x06);
  EXPECT_EQ(read(0x378), 0x20);
  EXPECT_EQ(told(), (Journal{"open 0", "changed", "0D=20", "0C=6", "0D?"}));
  now += std::chrono::hours(1);
  ports.tryAgain(0x378);
  EXPECT_EQ(kind(), Kind::Kernel);
  EXPECT_EQ(read(0x37A), 0x06);
  EXPECT_EQ(told(), (Journal{"0C?"}));
  EXPECT_EQ(ports.vanished(), 0);
}

TEST_F(PortsOfAPc, AnEntryWithoutOneIsLookedForAtItsNextUseAndNeverInTheMiddleOfATransfer) {
  kernel.refused[0] = Kind::NoPermission;
  write(0x378, 0x20);
  EXPECT_EQ(told(), (Journal{"open 0", "changed"}));
  for (int bit = 0; bit < 1000; ++bit) {
    now += milliseconds(1);
    write(0x378, bit % 256);
    EXPECT_EQ(read(0x378), bit % 256);
  }
  EXPECT_EQ(told(), Journal{});
  EXPECT_EQ(ports.vanished(), 1001);
  now += milliseconds(99);
  EXPECT_EQ(kind(), Kind::NoPermission);
  read(0x378);
  EXPECT_EQ(told(), Journal{});
  now += milliseconds(100);
  read(0x378);
  EXPECT_EQ(told(), (Journal{"open 0"})) << "the same state is no change";
  kernel.refused.clear();
  now += milliseconds(100);
  write(0x378, 0x33);
  EXPECT_EQ(told(), (Journal{"open 0", "changed", "0D=33"}));
  EXPECT_EQ(ports.vanished(), 1001);
}

TEST_F(PortsOfAPc, TheControlRegisterWhichNoTransferUsesLooksOnceASecond) {
  kernel.found.clear();
  read(0x37A);
  for (int tick = 1; tick < 20; ++tick) {
    now += milliseconds(90);
    read(0x37A);
    write(0x37A, 0x0C);
    if (tick == 5) kernel.found = {{0, 0x378}};
    EXPECT_EQ(kind(), tick < 12 ? Kind::NoPort : Kind::Kernel) << tick;
  }
}

TEST_F(PortsOfAPc, ALostPortIsFoundOutAndFoundAgain) {
  write(0x378, 0x20);
  told();
  kernel.found.clear();
  now += milliseconds(9);
  write(0x378, 0xA0);
  EXPECT_EQ(told(), (Journal{"0D=A0"}));
  now += milliseconds(1);
  write(0x378, 0x21);
  EXPECT_EQ(told(), (Journal{"close 0", "changed"}));
  EXPECT_EQ(read(0x378), 0x21);
  EXPECT_EQ(ports.vanished(), 1);
  now += std::chrono::seconds(1);
  write(0x378, 0x22);
  EXPECT_EQ(kind(), Kind::Lost) << "for as long as there is none";
  EXPECT_EQ(told(), Journal{});
  kernel.refused[0] = Kind::Busy;
  kernel.found = {{0, 0x378}};
  ports.tryAgain(0x378);
  EXPECT_EQ(kind(), Kind::Busy);
  kernel.refused.clear();
  ports.tryAgain(0x378);
  EXPECT_EQ(told(), (Journal{"open 0", "changed", "open 0", "changed"}));
  for (const bool writing : {true, false}) {
    kernel.answers = false;
    if (writing) {
      write(0x378, 0x55);
    } else {
      EXPECT_EQ(read(0x378), 0x55);
    }
    EXPECT_EQ(kind(), Kind::Lost) << "a refused access is a loss as well";
    kernel.answers = true;
    ports.tryAgain(0x378);
  }
  kernel.found.clear();
  EXPECT_EQ(kind(), Kind::Lost) << "who asks gets the present state";
  EXPECT_EQ(ports.vanished(), 3);
}

TEST_F(PortsOfAPc, ALostPortIsNeverReplacedByAnother) {
  kernel.found = {{0, 0xC000}, {1, 0xD010}};
  write(0x378, 1);
  told();
  kernel.found = {{1, 0xD010}};
  now += std::chrono::hours(1);
  write(0x378, 2);
  ports.tryAgain(0x378);
  EXPECT_EQ(kind(), Kind::Lost);
  EXPECT_EQ(told(), (Journal{"close 0", "changed"})) << "another machine hangs there";
  kernel.found = {{1, 0xD010}, {2, 0xC000}};
  write(0x278, 3);
  now += std::chrono::hours(1);
  write(0x378, 4);
  EXPECT_EQ(told(), (Journal{"open 1", "changed", "1D=3", "open 2", "changed", "2D=4"}));
}

TEST_F(PortsOfAPc, NoMessageEndsOnAPortThatItDidNotBeginOn) {
  kernel.found.clear();
  write(0x378, 0x20);
  EXPECT_EQ(told(), (Journal{"changed"})) << "also where it is the state that nobody has asked for";
  ports.markMessage(true);
  write(0x378, 0x20);
  kernel.found = {{0, 0x378}};
  now += std::chrono::hours(1);
  write(0x378, 0xA0);
  EXPECT_EQ(told(), Journal{});
  ports.markMessage(false);
  write(0x378, 0x20);
  EXPECT_EQ(told(), Journal{}) << "nor without a pause";
  ports.markMessage(true);
  write(0x378, 0x21);
  EXPECT_EQ(told(), (Journal{"open 0", "changed", "0D=21"}));
}

TEST_F(PortsOfAPc, RegistersComeWhereTheDriverHasNoPortButNotPastWhoUsesIt) {
  raw.found = {{0, 0x378}, {1, 0x278}};
  const std::pair<Kind, Kind> cases[] = {{Kind::NoNode, Kind::Kernel},
                                         {Kind::NoPermission, Kind::Kernel},
                                         {Kind::Busy, Kind::Busy},
                                         {Kind::Printing, Kind::Printing}};
  for (const auto& [refusal, expected] : cases) {
    PrinterPorts fresh({&kernel, &raw}, memory, [this] { return now; });
    kernel.refused[0] = refusal;
    journal.clear();
    fresh.tryAgain(0x378);
    EXPECT_EQ(fresh.state(0x378).kind, expected);
    EXPECT_EQ(journal.size(), expected == Kind::Kernel ? 2U : 1U);
  }
  raw.refused[1] = Kind::NoRegisters;
  kernel.found.clear();
  kernel.ifNone = Kind::NoDriver;
  ports.tryAgain(0x278);
  EXPECT_EQ(kind(0x278), Kind::NoDriver) << "the first one's reason";
}

TEST_F(PortsOfAPc, NoPortServesTwoEntries) {
  kernel.found = {{0, 0xC000}, {1, 0xD010}};
  write(0x278, 1);
  write(0x378, 2);
  write(0x3BC, 3);
  EXPECT_EQ(told(), (Journal{"open 1", "changed", "1D=1", "open 0", "changed", "0D=2", "changed"}));
  EXPECT_EQ(kind(0x3BC), Kind::NoneLeft);
  // A new port with a lower number doesn't move those that are held.
  kernel.found = {{0, 0xC000}, {1, 0xD010}, {2, 0x3BC}};
  now += milliseconds(200);
  write(0x278, 4);
  now += milliseconds(200);
  write(0x3BE, 5);
  EXPECT_EQ(told(), (Journal{"1D=4", "open 2", "changed", "2C=5"}));
  PrinterPorts other({&kernel}, memory, [this] { return now; });
  kernel.found = {{0, 0xC000}, {1, 0xD010}};
  other.tryAgain(0x378);
  other.tryAgain(0x278);
  EXPECT_EQ(told(), (Journal{"open 0", "open 1"})) << "in whichever order they are used";
}

TEST_F(PortsOfAPc, TheLastControlValueIsKeptForTheNextRun) {
  write(0x37A, 0xC6);
  write(0x37A, 0x06);
  write(0x37A, 0x0E);
  EXPECT_EQ(told(), (Journal{"open 0", "changed", "0C=C6", "0C=6", "0C=E"}));
  EXPECT_EQ(memory.last(0x378), 0x0E);
  PrinterPorts next({&kernel}, memory, [this] { return now; });
  next.tryAgain(0x378);
  EXPECT_EQ(told(), (Journal{"open 0 C=E"}));
  kernel.found = {{0, 0x278}};
  next.tryAgain(0x278);
  EXPECT_EQ(told(), (Journal{"open 0"})) << "of this port and no other";
}

TEST_F(PortsOfAPc, OtherAddressesAreNobodys) {
  write(0x379, 7);
  write(0x7000, 8);
  EXPECT_EQ(read(0x379) + read(0x7000), 15);
  EXPECT_EQ(kind(0x7000), Kind::NoPort);
  ports.tryAgain(0x7000);
  EXPECT_EQ(told(), Journal{});
  EXPECT_EQ(ports.vanished(), 2);
}

TEST(ControlMemory, KeepsAValueForThisRunOfThePcInAFolderOfItsOwn) {
  const support::Scratch scratch;
  const std::string folder = scratch.path("monitra");
  const ControlMemory memory(folder, "this-boot");
  EXPECT_EQ(memory.last(0x378), std::nullopt);
  for (const int value : {0x0E, 0x00, 0x06}) {
    memory.keep(0x378, static_cast<std::uint8_t>(value));
    EXPECT_EQ(memory.last(0x378), value);
  }
  memory.keep(0xD010, 0x0C);
  EXPECT_EQ(memory.last(0x378), 0x06);
  EXPECT_EQ(ControlMemory(folder, "that-boot").last(0x378), std::nullopt);
  for (const char* const damaged : {"", "this-boot", "this-boot zz", "this-boot 100"}) {
    scratch.write("monitra/control-378", damaged);
    EXPECT_EQ(memory.last(0x378), std::nullopt) << damaged;
  }
  namespace fs = std::filesystem;
  fs::permissions(folder, fs::perms::others_write, fs::perm_options::add);
  memory.keep(0xD010, 0x0E);
  EXPECT_EQ(memory.last(0xD010), 0x0C) << "nothing is kept where others can write";
  fs::permissions(folder, fs::perms::others_write, fs::perm_options::remove);
  const std::string target = scratch.write("fontos.txt", "this-boot 05\n");
  fs::create_symlink(target, folder + "/control-278");
  memory.keep(0x278, 0x0E);
  EXPECT_EQ(scratch.read("fontos.txt"), "this-boot 05\n");
}

}  // namespace
}  // namespace monitra::ports
