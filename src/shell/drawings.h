#pragma once

#include <span>

#include "shell/control_name.h"
#include "timing/setup_panel.h"

namespace monitra::shell {

/// A straight line of a drawing, in twips of its tab's own space, y growing downwards.
struct DrawnLine {
  int x1, y1, x2, y2;
  bool marker = false;                                    ///< red and dotted
  controls::Line timing::SetupPanel::*shownBy = nullptr;  ///< it shows while that is visible
};

/// A label in a drawing, with an entry among the controls: the place of its left edge and top, in
/// the same twips.
struct DrawnLabel {
  ControlName control;
  int x, y;
  bool bold = false;
};

/// The timing diagram on the tab "Motor Setup", with the heads of the grid's columns.
std::span<const DrawnLine> diagramLines();
std::span<const DrawnLabel> diagramHeads();

/// The machine's axes on the tab "Teszt", with their letters.
std::span<const DrawnLine> axisLines();
std::span<const DrawnLabel> axisLetters();

}  // namespace monitra::shell
