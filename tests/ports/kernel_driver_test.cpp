#include "ports/kernel_driver.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

#include "ports/locked_file.h"
#include "support/scratch.h"

namespace monitra::ports {
namespace {

namespace fs = std::filesystem;
using platform::PortState;
using Kind = PortState::Kind;

/// Folders as the kernel shows them, without a kernel behind them.
struct KernelFolders : testing::Test {
  void make(const std::string& path, const std::string& content) {
    fs::create_directories(fs::path(scratch.path(path)).parent_path());
    scratch.write(path, content);
  }
  void makePort(int number, const std::string& address, const std::string& active = "none") {
    const std::string name = "parport" + std::to_string(number);
    make("proc/sys/dev/parport/" + name + "/base-addr", address + "\t0\n");
    make("proc/sys/dev/parport/" + name + "/devices/active", active + "\n");
    make("dev/" + name, "");
  }
  void registerDevice(const std::string& name) {
    fs::create_directories(scratch.path("proc/sys/dev/parport/parport0/devices/" + name));
  }
  std::string node() { return scratch.path("dev/parport0"); }
  PortState look() { return driver.look({0, 0x378}); }

  support::Scratch scratch;
  KernelDriver driver{ParportFolder(scratch.path())};
};

TEST_F(KernelFolders, GiveThePortsByNumber) {
  EXPECT_EQ(driver.find().size(), 0U);
  EXPECT_EQ(driver.none().kind, Kind::NoDriver);
  make("sys/module/parport_pc/refcnt", "0");
  make("proc/sys/dev/parport/default/timeslice", "200");
  EXPECT_EQ(driver.none().kind, Kind::NoPort);
  makePort(10, "53264");
  makePort(2, "888");
  make("proc/sys/dev/parport/parport3/base-addr", "x\n");
  make("proc/sys/dev/parport/parport4/modes", "PCSPP");
  EXPECT_EQ(driver.find(), (std::vector<FoundPort>{{2, 0x378}, {10, 0xD010}}));
}

TEST_F(KernelFolders, TellWhoHasAPortAndWhyItCannotBeOpened) {
  makePort(0, "888");
  EXPECT_EQ(look(), (PortState{.kind = Kind::Untried, .address = 0x378, .node = node()}));
  registerDevice("lp");
  EXPECT_EQ(look().kind, Kind::Untried);
  EXPECT_TRUE(look().shared);
  makePort(0, "888", "lp");
  EXPECT_EQ(look().kind, Kind::Printing);
  registerDevice("imm");
  EXPECT_EQ(look().kind, Kind::Busy);
  EXPECT_EQ(look().holder, "imm");
  EXPECT_TRUE(look().holderIsDriver);
  {
    LockedFile other(node());
    ASSERT_TRUE(other.lock());
    EXPECT_FALSE(LockedFile(node()).lock());
  }
  fs::remove_all(scratch.path("proc/sys/dev/parport/parport0/devices/imm"));
  LockedFile other(node());
  ASSERT_TRUE(other.lock());
  EXPECT_EQ(look().kind, Kind::Busy);
  EXPECT_EQ(look().holder, "test_ports (" + std::to_string(::getpid()) + ")");
  EXPECT_EQ(driver.open({0, 0x378}, {}).state, look());
  other = LockedFile();
  EXPECT_EQ(look().kind, Kind::Printing);
  make("run/lock/monitra-378", "");
  LockedFile byRegisters = lockFile(scratch.path("run/lock/monitra-378"));
  ASSERT_TRUE(byRegisters.lock());
  EXPECT_EQ(look().kind, Kind::Busy) << "by whichever way another program uses it";
  EXPECT_EQ(look().holder, "test_ports (" + std::to_string(::getpid()) + ")");
}

TEST_F(KernelFolders, TellsWhatIsNotThere) {
  EXPECT_EQ(look().kind, Kind::NoNode);
  make("sys/class/ppdev/parport1", "");
  EXPECT_EQ(look().kind, Kind::NoDriver);
  makePort(0, "888");
  fs::remove(node());
  EXPECT_EQ(look().kind, Kind::Hidden);
  makePort(0, "888");
  const Opening opening = driver.open({0, 0x378}, 0x06);
  EXPECT_EQ(opening.port, nullptr);
  EXPECT_EQ(opening.state.kind, Kind::Failed);
  EXPECT_EQ(opening.state.error, ENOTTY) << "a plain file is no port";
  EXPECT_EQ(scratch.read("dev/parport0"), "");
  if (::geteuid() == 0) return;
  fs::permissions(node(), fs::perms::none);
  EXPECT_EQ(look().kind, Kind::NoPermission);
}

}  // namespace
}  // namespace monitra::ports
