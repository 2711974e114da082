#pragma once

#include "controls/controls.h"
#include "controls/indexed_array.h"

namespace monitra::bench {

/// The controls of the pulse generator, with the values of the window description.
struct JogPanel {
  /// Lets every held jog button come up.
  void releaseAll() {
    for (int i = Mozg.first; i < Mozg.end; ++i) Mozg[i].release();
  }

  struct JogButton : controls::HoldButton {
    JogButton() : HoldButton(false) {}
  };

  controls::TextBox Seb{"100"};                             ///< steps per second
  controls::IndexedArray<controls::CheckBox, 0, 3> Invert;  ///< direction of X, Y, Z swapped
  controls::ToggleButton Impulzus;                          ///< in: the generator is on
  controls::ToggleButton SpindleGomb{false};
  controls::IndexedArray<JogButton, 0, 6> Mozg;  ///< two for each of X, Y, Z
  controls::Timer Timer1;
};

}  // namespace monitra::bench
