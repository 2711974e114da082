#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ports/access_recorder.h"
#include "ports/kernel_driver.h"
#include "ports/locked_file.h"
#include "ports/raw_driver.h"
#include "ports/simulated_port.h"
#include "ports/steps.h"
#include "ports/vcd.h"
#include "support/journal.h"
#include "support/port_contract.h"
#include "support/same.h"
#include "support/scratch.h"

namespace monitra::ports {
namespace {

using namespace controller;
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
struct KernelFolders : Steps {
  /// All that it holds: its kind by number, address, node, holder and the rest.
  std::string text(const PortState& state) const {
    std::string all = std::to_string(static_cast<int>(state.kind)) + " " + hex(state.address);
    if (!state.node.empty()) all += " " + fs::path(state.node).lexically_relative(root).string();
    if (!state.holder.empty()) {
      all += " by " + (state.holder == thisProgram ? "this program" : state.holder);
    }
    if (state.error != 0) all += " error " + std::to_string(state.error);
    return all + state.group + (state.holderIsDriver ? " driver" : "") +
           (state.shared ? " shared" : "") + (state.comesAtStart ? " at start" : "");
  }
  void make(const std::string& path, const std::string& content) {
    fs::create_directories((root / path).parent_path());
    if (!path.ends_with('/')) scratch.write(path, content + "\n");
  }

  const FoundPort port{0, 0x10378};
  const std::string thisProgram = "test_ports (" + std::to_string(::getpid()) + ")";
  Scratch scratch;
  const fs::path root = scratch.path();
  std::map<std::string, LockedFile> locked;
  KernelDriver driver{ParportFolder(root)};
  RawDriver raw{ParportFolder(root)};
};

TEST_F(KernelFolders, GiveThePortsByNumberAndTellWhatIsNotThereAndWhoHasAPortByEitherWay) {
  play("kernel folders",
       {{"make", [this](auto& path, auto& content) { make(path, content); }},
        {"remove", [this](auto& path, auto&) { EXPECT_TRUE(fs::remove(root / path)); }},
        {"lock",
         [this](auto& path, auto&) { EXPECT_TRUE((locked[path] = lockFile(root / path)).lock()); }},
        {"free", [this](auto& path, auto&) { EXPECT_EQ(locked.erase(path), 1U); }},
        {"find",
         [this](auto&, auto&) {
           for (const auto& [number, at] : driver.find()) {
             tell(std::to_string(number) + " " + hex(at));
           }
         }},
        {"raw find",
         [this](auto&, auto&) { tell(std::to_string(std::ranges::count(raw.find(), port))); }},
        {"none", [this](auto&, auto&) { tell(text(driver.none())); }},
        {"look", [this](auto&, auto&) { tell(text(driver.look(port))); }},
        {"raw look", [this](auto&, auto&) { tell(text(raw.look(port))); }},
        {"open", [this](auto&, auto&) { tell(text(driver.open(port, {}).state)); }},
        {"raw open", [this](auto&, auto&) { tell(text(raw.open(port, {}).state)); }}});
}

TEST_F(KernelFolders, NameTheProgramThatHasAFileOpenAndLockWhatIsNoLink) {
  EXPECT_TRUE(lockFile(scratch.path("zar")).lock());
  EXPECT_EQ(fs::status(scratch.path("zar")).permissions(), fs::perms{0644}) << "for every user";
  fs::create_symlink("zar", scratch.path("lanc"));
  EXPECT_EQ(lockFile(scratch.path("lanc")).error(), ELOOP);
  EXPECT_EQ(LockedFile(scratch.path("nincs")).error(), ENOENT);

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
