#pragma once

#include "controls/controls.h"
#include "controls/indexed_array.h"

namespace monitra::bench {

/// Row of an option button in its motor's frame, top to bottom on the screen.
enum PhaseRow : int { RowL1, RowSupply1, RowL2, RowL3, RowSupply2, RowL4, RowOff };
inline constexpr int phaseRows = 7;

/// Index in L of the button in a row of a motor, 0 to 2: the array runs down X, up Y and up Z.
constexpr int phaseIndex(int motor, int row) {
  return motor == 0 ? row : phaseRows * (motor + 1) - 1 - row;
}
constexpr int motorOf(int index) {
  return index / phaseRows;
}
constexpr int rowOf(int index) {
  return phaseIndex(motorOf(index), index);
}

/// The controls of the phase test, with the values of the window description.
struct PhasePanel {
  PhasePanel();

  controls::IndexedArray<controls::OptionButton, 0, 3 * phaseRows> L;
  controls::IndexedArray<controls::PushButton, 0, 3> Leptet;
};

}  // namespace monitra::bench
