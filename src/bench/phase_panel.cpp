#include "bench/phase_panel.h"

namespace monitra::bench {

PhasePanel::PhasePanel() {
  for (int i = L.first; i < L.end; ++i) {
    for (int other = L.first; other < L.end; ++other) {
      if (other != i && motorOf(other) == motorOf(i)) L[i].others.push_back(&L[other]);
    }
  }
  for (int motor = 0; motor < 3; ++motor) {
    L[phaseIndex(motor, RowSupply1)].Enabled = false;
    L[phaseIndex(motor, RowSupply2)].Enabled = false;
    L[phaseIndex(motor, RowOff)].Value = true;
  }
}

}  // namespace monitra::bench
