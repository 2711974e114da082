#pragma once

#include <span>
#include <string_view>

namespace monitra::shell {

/// The fixed words of a control. The elements of a control array that share them have one entry
/// under the array's name; an element with its own has one under "Name(index)".
struct ControlWords {
  std::string_view name;
  std::string_view caption;  ///< empty where the program sets the caption, or there is none
  std::string_view tooltip;
};

/// The words of a control that has an entry; a name without one is an error of the caller.
const ControlWords& controlWords(std::string_view name);

/// Captions of the tabs, in the order of SSTab1.
std::span<const std::string_view> tabCaptions();

/// A straight line of a drawing, in twips of its tab's own space, y growing downwards.
struct DrawnLine {
  std::string_view name;
  int x1, y1, x2, y2;
  bool marker = false;  ///< red and dotted
};

/// A label in a drawing: the place of its left edge and top, in the same twips.
struct DrawnLabel {
  std::string_view name;
  int x, y;
  bool enabled = true;
};

/// The timing diagram on the tab "Motor Setup", with the heads of the grid's columns.
std::span<const DrawnLine> diagramLines();
std::span<const DrawnLabel> diagramHeads();

/// The machine's axes on the tab "Teszt", with their letters.
std::span<const DrawnLine> axisLines();
std::span<const DrawnLabel> axisLetters();

/// Client area of the window in twips, 1440 to the inch.
inline constexpr int clientWidth = 9390;
inline constexpr int clientHeight = 6720;

}  // namespace monitra::shell
