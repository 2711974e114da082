#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ports/kernel_driver.h"
#include "ports/locked_file.h"
#include "ports/raw_driver.h"
#include "ports/recorder.h"
#include "ports/simulated_port.h"
#include "ports/steps.h"
#include "ports/vcd.h"
#include "support/port_contract.h"
#include "support/same.h"
#include "support/scratch.h"

namespace monitra::ports {
namespace {

using namespace support;
using namespace std::chrono_literals;
using platform::PortState;

INSTANTIATE_TEST_SUITE_P(
    Here, PortContract,
    testing::Values(PortUnderTest{
        "simulated", [] { return std::make_unique<SimulatedPort>(); }, {0x378, 0x278, 0x3BC}}));

struct Simulated : Steps {
  void makePort() {
    port = std::make_unique<SimulatedPort>([this] { return now; });
    port->received = [this](std::int32_t address, const VirtualController& from,
                            const Received& message) {
      const char* const kinds[] = {"setup ", "frame ", "unknown "};
      tell(std::to_string(address) + " " + std::string(from.wiring().board) + " " +
           kinds[static_cast<int>(message.kind)] + bytesText(message.bytes));
      keepState(from);
    };
    port->moved = [this](std::int32_t, const VirtualController& from) { keepState(from); };
  }
  void keepState(const VirtualController& from) {
    if (from.wiring().board == wiringV4x.board) state = describe(from.machine());
  }
  void write(const std::string& address, int levels) {
    port->DlPortWritePortUchar(number(address), static_cast<std::uint8_t>(levels));
  }
  /// Clocks bytes into a port by its pins alone.
  void send(const std::string& address, const std::string& bytes, int clockBit) {
    std::istringstream all(bytes);
    for (int byte = 0; all >> byte;) {
      for (int n = 0; n < 8; ++n) {
        const int data = (byte >> n & 1) << 5;
        for (const int levels : {data, data | 1 << clockBit, data}) write(address, levels);
      }
    }
  }

  std::unique_ptr<SimulatedPort> port;
  std::string state;
};

TEST_F(Simulated, EachBoardTellsItsMessagesAndItsMachineFollowsThePins) {
  play("virtual controller", {{"new", [this](auto&, auto&) { makePort(); }},
                              {"bytes", [this](auto& at, auto& bytes) { send(at, bytes, 7); }},
                              {"bytes V3.2", [this](auto& at, auto& bytes) { send(at, bytes, 2); }},
                              {"levels",
                               [this](auto& at, auto& levels) {
                                 std::istringstream all(levels);
                                 for (int each = 0; all >> std::hex >> each;) write(at, each);
                               }},
                              {"plug", [this](auto& board, auto&) { port->plugIn(board); }},
                              {"state", [this](auto&, auto&) { tell(state); }}});
}

TEST(Vcd, GivesEveryWriteOfThePortAtItsTime) {
  using enum PortEvent::Kind;
  const std::string dump = vcd({0x378,
                                0x37A,
                                {"D0", "D1", "D2", "D3", "D4", "D5_Adat", "D6", "D7_Orajel"},
                                {"C0", "C1_Spindle", "C2", "C3", "C4", "C5", "C6", "C7"}},
                               {{Read, 0x378, 0x01, 5us},
                                {Write, 0x378, 0x21, 7us},
                                {Sleep, 0, 1, 1007us},
                                {Read, 0x378, 0x21, 1008us},
                                {Write, 0x278, 0xFF, 1008us},
                                {Read, 0x37A, 0x04, 1009us},
                                {Write, 0x37A, 0x02, 1010us},
                                {Write, 0x378, 0x21, 1011us},
                                {Sleep, 0, 1, 2010us}});
  std::ifstream expected(MONITRA_VCD);
  EXPECT_EQ(dump, std::string(std::istreambuf_iterator<char>(expected), {}));
}

namespace fs = std::filesystem;
using Kind = PortState::Kind;

/// Folders as the kernel shows them. No port stands behind their nodes, and no PC has registers at
/// their port's address.
struct KernelFolders : testing::Test {
  void make(const std::string& path, const std::string& content = {}) {
    fs::create_directories(fs::path(scratch.path(path)).parent_path());
    scratch.write(path, content);
  }
  void makePort(int number, int address, const std::string& active = "none") {
    const std::string name = "parport" + std::to_string(number);
    make("proc/sys/dev/parport/" + name + "/base-addr", std::to_string(address) + "\t0\n");
    make("proc/sys/dev/parport/" + name + "/devices/active", active + "\n");
    make("dev/" + name);
  }
  void makePort(const std::string& active = "none") { makePort(0, port.address, active); }
  PortState of(Kind kind, int error = 0) {
    return {.kind = kind, .address = port.address, .node = node, .error = error};
  }
  void expectBusy(const std::string& holder, bool isDriver) {
    PortState expected = of(Kind::Busy);
    expected.holder = holder;
    expected.holderIsDriver = isDriver;
    EXPECT_EQ(driver.look(port), expected) << holder;
    EXPECT_EQ(raw.look(port), expected) << holder;
    EXPECT_EQ(driver.open(port, {}).state, expected) << holder;
  }

  const FoundPort port{0, 0x10378};
  const std::string thisProgram = "test_ports (" + std::to_string(::getpid()) + ")";
  Scratch scratch;
  const std::string node = scratch.path("dev/parport0");
  const fs::path devices = scratch.path("proc/sys/dev/parport/parport0/devices");
  KernelDriver driver{ParportFolder(scratch.path())};
  RawDriver raw{ParportFolder(scratch.path())};
};

TEST_F(KernelFolders, GiveThePortsByNumberAndTellWhatIsNotThere) {
  EXPECT_EQ(driver.find().size(), 0U);
  EXPECT_EQ(driver.none().kind, Kind::NoDriver);
  make("sys/module/parport_pc/refcnt", "0");
  EXPECT_EQ(driver.none().kind, Kind::NoPort);
  for (const int number : {5, 10, 2, 7}) makePort(number, 0x378 + number);
  make("proc/sys/dev/parport/default/timeslice", "200");
  make("proc/sys/dev/parport/parport3/base-addr", "x\n");
  make("proc/sys/dev/parport/parport4/modes", "PCSPP");
  EXPECT_EQ(driver.find(),
            (std::vector<FoundPort>{{2, 0x37A}, {5, 0x37D}, {7, 0x37F}, {10, 0x382}}));
  EXPECT_EQ(driver.look(port), of(Kind::NoNode));
  make("sys/class/ppdev/parport1");
  EXPECT_EQ(driver.look(port), driver.none());
  makePort();
  fs::remove(node);
  EXPECT_EQ(driver.look(port), of(Kind::Hidden));
}

TEST_F(KernelFolders, TellWhoHasAPortByEitherWay) {
  makePort();
  EXPECT_EQ(raw.look(port), of(Kind::NoLockFolder, ENOENT)) << "without a folder for locks";
  make("run/lock/x");
  EXPECT_EQ(driver.look(port), of(Kind::Untried));
  EXPECT_EQ(driver.open(port, {}).state, of(Kind::Failed, ENOTTY)) << "a node without a port";
  EXPECT_EQ(raw.look(port), (PortState{.kind = Kind::Untried, .address = port.address}));
  EXPECT_EQ(raw.open(port, {}).state.kind, Kind::NoRegisters);
  EXPECT_EQ(std::ranges::count(raw.find(), port), 0) << "it doesn't answer";
  fs::create_directories(devices / "lp");
  PortState expected = of(Kind::Untried);
  expected.shared = true;
  EXPECT_EQ(driver.look(port), expected);
  EXPECT_EQ(driver.open(port, {}).state, of(Kind::Failed, ENOTTY)) << "nor beside the printer's";
  makePort("lp");
  EXPECT_EQ(driver.look(port), of(Kind::Printing));
  EXPECT_EQ(raw.look(port).holder, "lp");
  EXPECT_TRUE(raw.look(port).holderIsDriver);
  LockedFile other(node);
  ASSERT_TRUE(other.lock());
  expectBusy(thisProgram, false);
  other = LockedFile(scratch.path("nincs"));
  EXPECT_EQ(other.error(), ENOENT);
  EXPECT_EQ(driver.open(port, {}).state, of(Kind::Printing));
  LockedFile byRegisters = lockFile(scratch.path("run/lock/monitra-10378"));
  ASSERT_TRUE(byRegisters.lock());
  expectBusy(thisProgram, false);
  fs::create_directories(devices / "imm");
  expectBusy("imm", true);
}

TEST_F(KernelFolders, NameTheProgramThatHasAFileOpenAndLockWhatIsNoLink) {
  EXPECT_TRUE(lockFile(scratch.path("zar")).lock());
  EXPECT_EQ(fs::status(scratch.path("zar")).permissions(), fs::perms{0644}) << "for every user";
  fs::create_symlink("zar", scratch.path("lanc"));
  EXPECT_EQ(lockFile(scratch.path("lanc")).error(), ELOOP);

  const std::string file = scratch.write("nyitva", "");
  const LockedFile mine(file);
  EXPECT_EQ(programHolding(file), "") << "nobody but this one";
  const pid_t child = ::fork();
  if (child == 0) ::_exit(::pause());
  EXPECT_EQ(programHolding(file), "test_ports (" + std::to_string(child) + ")");
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
}

}  // namespace
}  // namespace monitra::ports
