#include <gtest/gtest.h>

#include "link/command_frames.h"
#include "link/pin_names.h"
#include "link/port_selection.h"
#include "link/serial_line.h"
#include "link/upload.h"
#include "support/journal.h"
#include "support/rows.h"

namespace monitra::link {
namespace {

using namespace support;

struct Link : testing::Test {
  Link() {
    line.inMessage = [this](bool begins) {
      journal.push_back(std::string(begins ? "begins" : "ends") +
                        (registers.punctual ? ", punctual" : ""));
    };
  }

  Journal journal;
  JournalPort registers{journal};
  JournalBoxes box{journal};
  PortPanel panel;
  timing::SetupPanel setup;
  PortSelection port{
      panel, [this](Pcb pcb) { journal.push_back(pcb == Pcb::V32 ? "store V3.2" : "store V4.x"); }};
  SerialLine line{port, registers, registers};
  CommandFrames frames{line};
  Upload upload{setup, line, box};
};

TEST_F(Link, AddressesFollowTheSelectionOnlyWhenRefreshed) {
  const auto note = [this] {
    journal.push_back(std::to_string(port.AdatPort) + " " + std::to_string(port.VezerloPort) + " " +
                      panel.Cim1.Caption.get() + " " + panel.Cim2.Caption.get());
  };
  port.PortCimKiir();
  for (const int entry : {1, 2, 0}) {
    panel.LPT.select(entry), note();
    port.PortCimFrissit(), note();
    port.PortCimKiir(), note();
  }
  EXPECT_TRUE(same(journal, rows("addresses")[0])) << "and no port is touched";
  EXPECT_EQ(controlAddress(889), 0) << "unknown";
}

TEST_F(Link, BoardRevisionSetsMapCaptionsAndMarks) {
  const auto board = [this] {
    Journal all{panel.Mpcb32.Checked ? "32" : ""};
    all[0] += panel.Mpcb40.Checked ? "40" : "";
    all.push_back(panel.PCBV.Caption);
    for (int i = 0; i < 9; ++i) all.push_back(panel.Bitcim[i].Caption);
    std::ranges::copy(dataPinNames(port.pins()), std::back_inserter(all));
    std::ranges::copy(controlPinNames(port.pins()), std::back_inserter(all));
    return all;
  };
  const auto boards = rows("boards");
  journalise(journal, panel.PCBV.Caption);
  journalise(journal, panel.Bitcim[7].Caption);
  panel.Mpcb32.click();
  EXPECT_TRUE(same(board(), boards[0]));
  for (int twice = 0; twice < 2; ++twice) panel.Mpcb40.click();
  EXPECT_TRUE(same(board(), boards[1]));
  port.PcbAlkalmaz(Pcb::V32);
  EXPECT_TRUE(same(board(), boards[0]));
  EXPECT_TRUE(same(journal, rows("choices")[0])) << "only a choice in the menu is stored";
}

TEST_F(Link, UploadAsksSendsEachSpinValueInItsPlaceMovesTheBarAndSpeaks) {
  for (int i = 0; i < timing::timingFields; ++i) setup.FolLe[i].Value = 101 + i;
  setup.T1[3].Text = "7";
  setup.Ut.Text = "2";
  setup.Funkcio.ListIndex = 5;
  setup.Utfolle.Value = 254 * 256 + 1;
  setup.Turesfolle.Value = 200;
  setup.Xegesz.Checked = setup.Yegesz.Checked = setup.Zegesz.Checked = true;
  setup.Letolt.Enabled = true;
  setup.Bar.Value = 7;
  journalise(journal, setup.Bar.Value, "bar ");
  const auto button = setup.Letolt.Enabled.observe(
      [this] { journal.push_back(setup.Letolt.Enabled ? "on" : "off"); });
  upload.begun.handle([this] { journal.emplace_back("begun"); });
  upload.sending.handle([this] { journal.emplace_back("sending"); });
  upload.sent.handle([this] { journal.emplace_back("sent"); });
  setup.Letolt.click();
  EXPECT_TRUE(same(decoded(journal), rows("upload")[0]));
  EXPECT_EQ(setupMessage({.Xegesz = true})[18], 1);
  EXPECT_EQ(setupMessage({.Yegesz = true})[18], 2);
}

}  // namespace
}  // namespace monitra::link
