#include <gtest/gtest.h>

#include "bench/phase_test.h"
#include "bench/pulse_generator.h"
#include "ports/simulated_port.h"
#include "support/journal.h"

namespace monitra::bench {
namespace {

using link::Pcb;

/// The bench tests on the simulated port, whose controllers have pin tables of their own.
struct OnMachine : testing::Test {
  OnMachine() {
    simulated.moved = [this](auto address, const auto& controller) { note(address, controller); };
    simulated.received = [this](auto address, const auto& controller, auto&) {
      note(address, controller);
    };
  }
  void note(std::int32_t address, const ports::VirtualController& controller) {
    states[support::hex(address) + " " + std::string(controller.wiring().board)] =
        ports::describe(controller.machine());
  }

  support::Journal journal;
  support::JournalPort waits{journal};
  ports::SimulatedPort simulated{[] { return std::chrono::nanoseconds(0); }};
  std::map<std::string, std::string> states;
  link::PortPanel portPanel;
  link::PortSelection port{portPanel, [](Pcb) {}};
  link::SerialLine line{port, simulated, waits};
  link::CommandFrames frames{line};
  JogPanel jog;
  PhasePanel phases;
  LoadPanel load;
  PulseGenerator generator{jog, portPanel, port, simulated};
  LoadTest loadTest{load, phases, frames, [] {}};
  PhaseTest phaseTest{phases, loadTest, frames};
};

TEST_F(OnMachine, EachJogButtonMovesItsAxisItsWayByOneStepATick) {
  const std::string positions[] = {"X 5, Y 0, Z 0", "X 0, Y 0, Z 0", "X 0, Y 5, Z 0",
                                   "X 0, Y 0, Z 0", "X 0, Y 0, Z 5", "X 0, Y 0, Z 0"};
  // Each board on a port of its own, where the other board's pulses have moved nothing.
  for (const auto& [pcb, entry, at] :
       {std::tuple(Pcb::V32, 0, "378 PCB V3.2"), std::tuple(Pcb::V4x, 1, "278 PCB V4.x")}) {
    port.PcbAlkalmaz(pcb);
    portPanel.LPT.select(entry);
    jog.Impulzus.click();
    for (int i = 0; i < 6; ++i) {
      jog.Mozg[i].press();
      for (int n = 0; n < 5; ++n) jog.Timer1.tick();
      jog.Mozg[i].release();
      EXPECT_EQ(states[at], positions[i] + ", terhelés 0%, marómotor ki");
    }
    jog.Impulzus.click();
  }
}

TEST_F(OnMachine, LoadAndPhaseTestsSwitchTheLinesThatTheyShow) {
  port.PcbAlkalmaz(Pcb::V4x);
  load.TulH.click();
  load.Teh200.click();
  for (int step = 1; step <= loadSteps; ++step) {
    load.TapFel.click();
    const std::string shown = load.Taptext.Text.get();
    const std::string whole = shown.substr(1, shown.find_first_of(".%") - 1);
    EXPECT_NE(states["378 PCB V4.x"].find("terhelés " + whole + "%"), std::string::npos) << shown;
  }
  EXPECT_EQ(states["378 PCB V4.x"],
            "X 0 L1 L2 L3 L4, Y 0 L1 L2 L3 L4, Z 0 L1 L2 L3 L4, terhelés 200%");
  for (const int on : {1, 2, 3, 4, 1}) {
    phases.Leptet[1].click();
    EXPECT_EQ(states["378 PCB V4.x"], "X 0, Y 0 L" + std::to_string(on) + ", Z 0, terhelés 16%");
  }
}

}  // namespace
}  // namespace monitra::bench
