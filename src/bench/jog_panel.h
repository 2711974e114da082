#pragma once

#include <string>

#include "controls/controls.h"
#include "controls/indexed_array.h"

namespace monitra::bench {

/// The controls of the pulse generator that a restart keeps.
struct JogPanel {
  JogPanel() {
    Invert[0].Caption = "X invertálása";
    Invert[1].Caption = "Y invertálása";
    Invert[2].Caption = "Z invertálása";
  }

  controls::TextBox Seb{"100"};                             ///< steps per second
  controls::IndexedArray<controls::CheckBox, 0, 3> Invert;  ///< direction of X, Y, Z swapped
};

}  // namespace monitra::bench
