#include "bench/phase_test.h"

#include <cstddef>

namespace monitra::bench {

PhaseTest::PhaseTest(PhasePanel& panel, LoadTest& load, link::CommandFrames& frames)
    : panel_(panel), load_(load), frames_(frames) {
  for (int i = panel_.L.first; i < panel_.L.end; ++i) {
    panel_.L[i].Click.handle([this, i] { L_Click(i); });
  }
  for (int motor = 0; motor < 3; ++motor) {
    panel_.Leptet[motor].Click.handle([this, motor] { Leptet_Click(motor); });
  }
}

void PhaseTest::L_Click(int Index) {
  constexpr std::uint8_t none = 0;
  constexpr std::uint8_t values[phaseRows] = {
      link::FazisL1, none, link::FazisL2, link::FazisL3, none, link::FazisL4, link::FazisKi};
  const std::uint8_t motor = link::motors[static_cast<std::size_t>(motorOf(Index))];
  const std::uint8_t value = values[rowOf(Index)];
  if (value == none) return;
  if (load_.TapLepes > 0) load_.TapStop_Click();
  frames_.KeretKuld(motor, link::FazisKi);
  frames_.KeretKuld(motor, value);
}

void PhaseTest::Leptet_Click(int Index) {
  constexpr int next[phaseRows] = {RowL2, RowL1, RowL3, RowL4, RowL1, RowL1, RowL1};
  for (int row = 0; row < phaseRows; ++row) {
    if (!panel_.L[phaseIndex(Index, row)].Value) continue;
    panel_.L[phaseIndex(Index, next[row])].Value = true;
    return;
  }
}

}  // namespace monitra::bench
