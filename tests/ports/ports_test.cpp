#include <gtest/gtest.h>

#include "ports/recorder.h"
#include "ports/register_memory.h"
#include "ports/simulated_port.h"
#include "ports/vcd.h"
#include "support/port_contract.h"

namespace monitra::ports {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::microseconds;

using support::PortContract;
using support::PortUnderTest;

INSTANTIATE_TEST_SUITE_P(
    Here, PortContract,
    testing::Values(PortUnderTest{"memory",
                                  [] { return std::make_unique<RegisterMemory>(); },
                                  {0x378, 0x278, 0x3BC}},
                    PortUnderTest{"simulated",
                                  [] { return std::make_unique<SimulatedPort>(); },
                                  {0x378, 0x278, 0x3BC}}));

/// Clocks bytes into a port by its pins alone.
void send(SimulatedPort& port, std::int32_t address, int dataBit, int clockBit,
          const std::vector<int>& bytes) {
  for (const int byte : bytes) {
    for (int n = 0; n < 8; ++n) {
      const int data = (byte >> n & 1) << dataBit;
      for (const int levels : {data, data | 1 << clockBit, data}) {
        port.DlPortWritePortUchar(address, static_cast<std::uint8_t>(levels));
      }
    }
  }
}

struct Heard : testing::Test {
  Heard() {
    port.received = [this](std::int32_t address, const VirtualController& from,
                           const Received& message) {
      const char* const kinds[] = {"setup ", "frame ", "unknown "};
      heard.push_back(std::to_string(address) + " " + std::string(from.wiring().board) + " " +
                      kinds[static_cast<int>(message.kind)] + bytesText(message.bytes));
    };
  }

  SimulatedPort port;
  std::vector<std::string> heard;
};

TEST_F(Heard, EachBoardHearsItsOwnClockAndOnlyItsOwnPort) {
  send(port, 0x378, 5, 7, {99, 0, 16});
  send(port, 0x278, 5, 2, {110, 0, 4});
  send(port, 0x37A, 5, 7, {120, 0, 1});
  EXPECT_EQ(heard, (Lines{"888 PCB V4.x frame 99 0 16", "632 PCB V3.2 frame 110 0 4"}));
}

TEST_F(Heard, TellsSetupFramesAndBytesThatMakeNoMessage) {
  const std::string setup = "85 0 244 91 24 24 244 91 24 24 244 91 24 24 0 3 232 1 0 ";
  send(port, 0x378, 5, 7, {7});
  for (const int last : {255, 254}) {
    send(port, 0x378, 5, 7,
         {85, 0, 244, 91, 24, 24, 244, 91, 24, 24, 244, 91, 24, 24, 0, 3, 232, 1, 0, last});
  }
  send(port, 0x378, 5, 7, {99, 0, 3, 120, 1, 16, 120, 0, 8});
  EXPECT_EQ(heard, (Lines{"888 PCB V4.x unknown 7", "888 PCB V4.x setup " + setup + "255",
                          "888 PCB V4.x unknown " + setup + "254", "888 PCB V4.x unknown 99 0 3",
                          "888 PCB V4.x unknown 120 1 16", "888 PCB V4.x frame 120 0 8"}));
}

TEST_F(Heard, AClockThatIsHighAtTheStartCostsTheFirstBit) {
  port.DlPortWritePortUchar(0x378, 0x80);
  for (const int levels : {0xA0, 0xA0, 0x20}) {
    port.DlPortWritePortUchar(0x378, static_cast<std::uint8_t>(levels));
  }
  send(port, 0x378, 5, 7, {99, 0, 16});
  EXPECT_EQ(heard, (Lines{"888 PCB V4.x frame 99 0 16"}));
}

TEST_F(Heard, AStepOrALongPauseEndsWhatHasComeOfAMessage) {
  std::chrono::nanoseconds now{};
  SimulatedPort timed([&now] { return now; });
  timed.received = port.received;
  const auto write = [&timed](std::initializer_list<int> levels) {
    for (const int level : levels) {
      timed.DlPortWritePortUchar(0x378, static_cast<std::uint8_t>(level));
    }
  };
  write({0x80, 0x00, 0x80, 0x00});
  now += std::chrono::milliseconds(201);
  send(timed, 0x378, 5, 7, {99, 0});
  now += std::chrono::milliseconds(200);
  send(timed, 0x378, 5, 7, {1, 110, 0});
  now += std::chrono::milliseconds(201);
  send(timed, 0x378, 5, 7, {120});
  write({0x80, 0x82, 0x00});
  send(timed, 0x378, 5, 7, {99, 0, 16});
  EXPECT_EQ(heard, (Lines{"888 PCB V4.x frame 99 0 1", "888 PCB V4.x unknown 110 0",
                          "888 PCB V4.x unknown 120", "888 PCB V4.x frame 99 0 16"}));
}

TEST(Machine, FollowsStepsLinesAndSpindle) {
  SimulatedPort port;
  std::string state;
  int moves = 0;
  const auto show = [&state](const VirtualController& controller) {
    if (controller.wiring().board == wiringV4x.board) state = describe(controller.machine());
  };
  port.received = [&](auto, const VirtualController& controller, auto&) { show(controller); };
  port.moved = [&](auto, const VirtualController& controller) {
    show(controller);
    ++moves;
  };
  const auto write = [&port](std::int32_t address, std::initializer_list<int> levels) {
    for (const int level : levels) {
      port.DlPortWritePortUchar(address, static_cast<std::uint8_t>(level));
    }
  };
  write(0x378, {0x44, 0x44, 0x04, 0x44, 0x44, 0x04, 0x44});
  EXPECT_EQ(state, "X 2, Y 0, Z 0, terhelés 0%") << "a level that was high at first is no edge";
  write(0x378, {0x00, 0x10, 0x00, 0x10, 0x00, 0x30, 0x20, 0x82, 0x00, 0x02});
  EXPECT_EQ(state, "X 2, Y -1, Z 0, terhelés 0%");
  write(0x37A, {0x02});
  EXPECT_EQ(state, "X 2, Y -1, Z 0, terhelés 0%, marómotor ki");
  write(0x37A, {0x00});
  const int before = moves;
  write(0x37A, {0x0D, 0x00, 0x0C});
  EXPECT_EQ(moves, before) << "the other control bits mean nothing";
  write(0x378, {0x00});
  send(port, 0x378, 5, 7, {99, 0, 1, 99, 0, 8, 110, 0, 4});
  EXPECT_EQ(state, "X 2 L1 L4, Y -1 L3, Z 0, terhelés 50%, marómotor be");
  send(port, 0x378, 5, 7, {99, 0, 16});
  EXPECT_EQ(state, "X 2, Y -1 L3, Z 0, terhelés 16%, marómotor be");
}

TEST(Vcd, GivesEveryWriteOfThePortAtItsTime) {
  const VcdPort port{0x378,
                     0x37A,
                     {"D0", "D1", "D2", "D3", "D4", "D5_Adat", "D6", "D7_Orajel"},
                     {"C0", "C1_Spindle", "C2", "C3", "C4", "C5", "C6", "C7"}};
  using Kind = PortEvent::Kind;
  const std::string dump = vcd(port, {{Kind::Read, 0x378, 0x01, microseconds(5)},
                                      {Kind::Write, 0x378, 0x21, microseconds(7)},
                                      {Kind::Sleep, 0, 1, microseconds(1007)},
                                      {Kind::Read, 0x378, 0x21, microseconds(1008)},
                                      {Kind::Write, 0x278, 0xFF, microseconds(1008)},
                                      {Kind::Write, 0x37A, 0x02, microseconds(1009)},
                                      {Kind::Write, 0x378, 0x21, microseconds(1010)},
                                      {Kind::Sleep, 0, 1, microseconds(2010)}});
  const auto levels = [](const char* bits, char first) {
    std::string lines;
    for (int bit = 0; bit < 8; ++bit) {
      lines += std::string(1, bits[7 - bit]) + static_cast<char>(first + bit) + "\n";
    }
    return lines;
  };
  EXPECT_NE(dump.find("$timescale 1 us $end"), std::string::npos);
  EXPECT_NE(dump.find("$var wire 1 & D5_Adat $end\n"), std::string::npos);
  EXPECT_NE(dump.find("$var wire 1 * C1_Spindle $end\n"), std::string::npos);
  const std::string expected =
      "#0\n$dumpvars\n" + levels("xxxxxxxx", '!') + levels("xxxxxxxx", ')') + "$end\n#0\n" +
      levels("00000001", '!') + "#2\n" + levels("00100001", '!') + "#1004\n" +
      levels("00000010", ')') + "#1005\n" + levels("00100001", '!') + "#2005\n";
  EXPECT_EQ(dump.substr(dump.find("#0\n")), expected);
}

}  // namespace
}  // namespace monitra::ports
