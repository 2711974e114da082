#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

#include "ports/real_ports.h"
#include "support/port_contract.h"

/// What only a real kernel can answer. Runs inside the virtual PC: MONITRA_ENTRY is the entry of
/// LPT that its port serves, and the scripts take the port away and bring it back.
namespace monitra {
namespace {

using Kind = platform::PortState::Kind;

std::int32_t entry() {
  const char* const digits = std::getenv("MONITRA_ENTRY");
  return digits == nullptr ? 0x378 : static_cast<std::int32_t>(std::stol(digits, nullptr, 16));
}

using support::PortContract;

support::PortUnderTest real(const char* name, ports::Ways ways) {
  return {name, [ways] { return std::make_unique<ports::RealPorts>(ways); }, {entry()}};
}

INSTANTIATE_TEST_SUITE_P(Real, PortContract,
                         testing::Values(real("kernel", ports::Ways::KernelOnly),
                                         real("raw", ports::Ways::RawOnly)));

struct RealPort : testing::Test {
  Kind kind() { return port.state(entry()).kind; }
  void write(int value) { port.DlPortWritePortUchar(entry(), static_cast<std::uint8_t>(value)); }
  int read() { return port.DlPortReadPortUchar(entry()); }
  /// As long as a user takes for the next press.
  static void pause() { std::this_thread::sleep_for(std::chrono::milliseconds(150)); }
  static void script(const char* name) { ASSERT_EQ(std::system(name), 0); }

  ports::RealPorts port{ports::Ways::KernelOnly};
};

TEST_F(RealPort, IsFoundWhenItAppearsAndLostWhenItGoesAndFoundAgain) {
  script("/guest/remove-port");
  EXPECT_NE(kind(), Kind::Untried);
  write(0x11);
  EXPECT_FALSE(port.state(entry()).inUse());
  EXPECT_EQ(port.vanished(), 1);
  script("/guest/bring-port");
  pause();
  write(0x33);
  EXPECT_EQ(kind(), Kind::Kernel);

  script("/guest/remove-port");
  write(0x44);
  EXPECT_EQ(kind(), Kind::Lost);
  EXPECT_EQ(read(), 0x44);
  script("/guest/bring-port");
  pause();
  write(0x66);
  EXPECT_EQ(kind(), Kind::Kernel);
  EXPECT_EQ(read(), 0x66);
}

TEST_F(RealPort, IsNeverReplacedByAnother) {
  write(0x11);
  script("/guest/remove-port");
  pause();
  write(0x22);
  EXPECT_EQ(kind(), Kind::Lost);
  EXPECT_EQ(port.vanished(), 1);
}

TEST_F(RealPort, LeavesTheSpindleOn) {
  port.DlPortWritePortUchar(entry() + 2, 0x06);
  EXPECT_EQ(kind(), Kind::Kernel);
  EXPECT_EQ(port.DlPortReadPortUchar(entry() + 2), 0x06);
}

TEST_F(RealPort, IsBesideAnIdlePrinterDriver) {
  write(0x12);
  EXPECT_EQ(kind(), Kind::Kernel);
  EXPECT_TRUE(port.state(entry()).shared);
  EXPECT_EQ(read(), 0x12);
}

}  // namespace
}  // namespace monitra
