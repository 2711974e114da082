#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

#include "link/command_frames.h"
#include "link/port_selection.h"
#include "link/serial_line.h"
#include "link/upload.h"
#include "support/journal.h"

namespace monitra::link {
namespace {

using support::expectBytes;
using support::Journal;

struct Link : testing::Test {
  Journal journal;
  support::JournalPort registers{journal};
  support::JournalBoxes box{journal};
  PortPanel panel;
  timing::SetupPanel setup;
  PortSelection port{
      panel, [this](Pcb pcb) { journal.push_back(pcb == Pcb::V32 ? "store V3.2" : "store V4.x"); }};
  SerialLine line{port, registers, registers};
  CommandFrames frames{line};
  Upload upload{setup, line, box};
};

TEST_F(Link, AddressesFollowTheSelectionOnlyWhenRefreshed) {
  const auto state = [this] {
    return std::to_string(port.AdatPort) + " " + std::to_string(port.VezerloPort) + " " +
           panel.Cim1.Caption.get() + " " + panel.Cim2.Caption.get();
  };
  EXPECT_EQ(state(), "0 0  ");
  for (const auto& [index, addresses, captions] :
       {std::tuple(1, "632 634 ", "H278 H27A"), std::tuple(2, "956 958 ", "H3BC H3BE"),
        std::tuple(0, "888 890 ", "H378 H37A")}) {
    const std::string before = state();
    const std::string shown = panel.Cim1.Caption.get() + " " + panel.Cim2.Caption.get();
    panel.LPT.select(index);
    EXPECT_EQ(state(), before);
    port.PortCimFrissit();
    EXPECT_EQ(state(), addresses + shown);
    port.PortCimKiir();
    EXPECT_EQ(state(), std::string(addresses) + captions);
  }
  EXPECT_EQ(journal, Journal{}) << "no port is touched";
}

TEST_F(Link, BoardRevisionSetsMapCaptionsAndMarks) {
  const auto board = [this] {
    std::string all = panel.PCBV.Caption;
    for (int i = 0; i < 9; ++i) all += "|" + panel.Bitcim[i].Caption.get();
    return all + (panel.Mpcb32.Checked ? "|32" : "") + (panel.Mpcb40.Checked ? "|40" : "");
  };
  const std::string v32 =
      "PCB V3.2| 0. Bit| 1. Bit  YStep| 2. Bit  ZDir| 3. Bit| 4. Bit  XDir| 5. Bit  YDir"
      "| 6. Bit  ZStep| 7. Bit  XStep| 1. Bit  Spindle|32";
  const std::string v4x =
      "PCB V4.x| 0. Bit| 1. Bit  ZStep| 2. Bit  XDir| 3. Bit| 4. Bit  YStep| 5. Bit  YDir"
      "| 6. Bit  XStep| 7. Bit  ZDir| 1. Bit  Spindle|40";
  panel.PCBV.Caption.observe([&] { journal.push_back(panel.PCBV.Caption); });
  panel.Mpcb32.click();
  EXPECT_EQ(board(), v32);
  for (int twice = 0; twice < 2; ++twice) {
    panel.Mpcb40.click();
    EXPECT_EQ(board(), v4x);
  }
  port.PcbAlkalmaz(Pcb::V32);
  EXPECT_EQ(board(), v32);
  EXPECT_EQ(journal,
            (Journal{"store V3.2", "PCB V3.2", "store V4.x", "PCB V4.x", "store V4.x", "PCB V3.2"}))
      << "only a choice in the menu is stored, ahead of the caption";
}

TEST_F(Link, ABitIsOneReadThreeWritesThreeWaits) {
  line.SorosBit(true);
  line.SorosBit(false);
  EXPECT_EQ(journal, (Journal{"r378", "w378=20", "z1", "w378=A0", "z1", "w378=20", "z1", "r378",
                              "w378=0", "z1", "w378=80", "z1", "w378=0", "z1"}));
  journal.clear();
  port.PcbAlkalmaz(Pcb::V32);
  panel.LPT.select(2);
  line.SorosBit(true);
  line.SorosBit(false);
  EXPECT_EQ(journal, (Journal{"r3BC", "w3BC=20", "z1", "w3BC=24", "z1", "w3BC=20", "z1", "r3BC",
                              "w3BC=0", "z1", "w3BC=4", "z1", "w3BC=0", "z1"}));
}

TEST_F(Link, BytesGoLeastSignificantBitFirstAndSpareTheOtherPins) {
  for (const int state : {0x00, 0x5F, 0xDF}) {
    for (const int byte : {85, 0, 255, 2}) {
      journal.clear();
      registers.values[0x378] = static_cast<std::uint8_t>(state);
      Journal expected;
      const int end = expectBytes(expected, "378", registers.values[0x378], 5, 7, {byte});
      line.SorosBajt(static_cast<std::uint8_t>(byte));
      EXPECT_EQ(journal, expected);
      EXPECT_EQ(end & 0x5F, state & 0x5F);
    }
  }
  EXPECT_EQ(journal[1], "w378=DF") << "a clock line left high is not repaired first";
}

TEST_F(Link, SorosAlapClearsBothLinesByOneWriteAndNoWait) {
  registers.values[0x378] = 0xFF;
  line.SorosAlap();
  line.SorosAlap();
  EXPECT_EQ(journal, (Journal{"r378", "w378=5F", "r378", "w378=5F"}));
  journal.clear();
  registers.values[0x278] = 0xFF;
  port.PcbAlkalmaz(Pcb::V32);
  panel.LPT.select(1);
  line.SorosAlap();
  EXPECT_EQ(journal, (Journal{"r278", "w278=DB"}));
}

TEST_F(Link, AFrameIsMotorZeroCommand) {
  Journal expected;
  const auto state = expectBytes(expected, "378", 0, 5, 7, {110, 0, 4});
  frames.KeretKuld(MotorY, FazisL3);
  EXPECT_EQ(journal, expected);
  EXPECT_EQ(state, 0) << "a frame ends in the idle state";
}

TEST(SetupMessage, HasEachSpinValueInItsPlace) {
  const timing::SetupPanel startUp;
  EXPECT_EQ(setupMessage(startUp.spinValues()),
            (SetupMessage{85,  0,  244, 91, 24, 24, 244, 91, 24, 24,
                          244, 91, 24,  24, 0,  3,  232, 1,  0,  255}));
  timing::SetupPanel panel;
  for (int i = 0; i < timing::timingFields; ++i) panel.FolLe[i].Value = 101 + i;
  panel.T1[3].Text = "7";
  panel.Ut.Text = "2";
  panel.Funkcio.ListIndex = 5;
  panel.Utfolle.Value = 0x1234;
  panel.Turesfolle.Value = 200;
  panel.Yegesz.Checked = true;
  panel.Zegesz.Checked = true;
  EXPECT_EQ(setupMessage(panel.spinValues()),
            (SetupMessage{85,  0,   104, 101, 107, 110,  105,  102, 108, 111,
                          106, 103, 109, 112, 5,   0x12, 0x34, 200, 6,   255}));
  panel.Xegesz.Checked = true;
  EXPECT_EQ(setupMessage(panel.spinValues())[18], 7);
}

const char* const readyBox =
    "box 52: Setup adatatok feltöltése a vezérlőbe!\r\n"
    "Indítsa a CNC-t PC-Setup módba és várja meg a Vezérlő jelzését!\r\n"
    "Kész a vezérlő az adatok fogadására?";
const char* const doneBox =
    "box 64: A feltöltés kész!\r\n"
    "Ha nem indult újra a Vezérlő, ismételje meg újra az adatok feltöltését.";

TEST_F(Link, UploadAsksSendsMovesTheBarAndSpeaks) {
  setup.Letolt.Enabled = true;
  setup.Bar.Value = 7;
  setup.Bar.Value.observe(
      [this] { journal.push_back("bar " + std::to_string(static_cast<int>(setup.Bar.Value))); });
  setup.Letolt.Enabled.observe([this] { journal.push_back(setup.Letolt.Enabled ? "on" : "off"); });
  upload.begun.handle([this] { journal.emplace_back("begun"); });
  upload.sent.handle([this] { journal.emplace_back("sent"); });
  setup.Letolt.click();

  Journal expected{"begun", "off", "bar 0", readyBox};
  const std::vector<std::pair<std::vector<int>, int>> stretches{
      {{85, 0, 244}, 10},  {{91, 24}, 25}, {{24, 244}, 35}, {{91, 24}, 50},
      {{24, 244, 91}, 62}, {{24, 24}, 75}, {{0, 3}, 85},    {{232, 1, 0, 255}, 100}};
  std::uint8_t state = 0;
  for (const auto& [bytes, bar] : stretches) {
    state = expectBytes(expected, "378", state, 5, 7, bytes);
    expected.push_back("bar " + std::to_string(bar));
  }
  expected.insert(expected.end(), {"sent", doneBox, "bar 0", "on"});
  EXPECT_EQ(journal, expected);
  EXPECT_EQ(std::count(journal.begin(), journal.end(), "z1"), 480);
  EXPECT_EQ(state, 0x20) << "the data line holds the last bit, the clock is low";
}

TEST_F(Link, UploadTouchesNothingOnNo) {
  box.answers = {platform::BoxAnswer::No};
  setup.Letolt.click();
  EXPECT_EQ(journal, Journal{}) << "the button starts disabled";
  setup.Letolt.Enabled = true;
  setup.Letolt.click();
  EXPECT_EQ(journal, (Journal{readyBox}));
  EXPECT_EQ(setup.Bar.Value, 0);
  EXPECT_TRUE(setup.Letolt.Enabled);
}

}  // namespace
}  // namespace monitra::link
