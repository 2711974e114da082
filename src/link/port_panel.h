#pragma once

#include "controls/controls.h"
#include "controls/indexed_array.h"

namespace monitra::link {

/// The controls of the port and the board, with the values of the window description.
struct PortPanel {
  void enableBits(bool enabled) {
    for (int i = Bitcim.first; i < Bitcim.end; ++i) Bitcim[i].Enabled = enabled;
  }

  controls::PickList LPT{{"&H378", "&H278", "&H3BC"}};
  controls::Label Cim1;
  controls::Label Cim2;
  /// Boxes 0 to 7 stand for the bits of the data register, box 8 for the spindle bit.
  controls::IndexedArray<controls::CheckBox, 0, 9> Bitcim;
  controls::MenuEntry Mpcb32;
  controls::MenuEntry Mpcb40{true};
  controls::Label PCBV;
};

}  // namespace monitra::link
