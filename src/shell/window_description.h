#pragma once

#include <string_view>

namespace monitra::shell {

enum class Kind {
  Label,
  BoxedLabel,
  StatusLine,  ///< a label of one line, cut where it doesn't fit
  Picture,
  Frame,
  Instrument,  ///< a text box that only shows
  TextBox,
  TextArea,
  SpinButton,
  CheckBox,
  PushButton,
  HoldButton,
  ToggleButton,
  OptionButton,
  DropDownList,
  ListBox,
  ProgressBar,
  LedMeter,
  TabStrip,
};

/// How a control stands ahead of the start-up, where that isn't simply shown and enabled.
enum class State { Normal, Disabled, Hidden, Selected };

/// Elements of a control array; none for a single control.
struct Elements {
  int first = -1;
  int count = 0;
};

/// One control of the window, or the elements of a control array that share their words. Timer1
/// and Fileablak, of which nothing shows, have no entry.
struct ControlDescription {
  std::string_view name = {};
  Elements elements = {};
  Kind kind = Kind::Label;
  std::string_view caption = {};  ///< or default text; empty where the program sets it at once
  std::string_view tooltip = {};
  State state = State::Normal;
  char mnemonic = 0;  ///< letter of the caption; no mnemonic makes anything move on the machine
  /// What a screen reader calls it, where that isn't its caption; in an array "%" stands for the
  /// axis of the element. The text that a label shows comes behind it.
  std::string_view spoken = {};
  std::string_view hint = {};   ///< tells a screen reader more than the tooltip; never shown
  std::string_view buddy = {};  ///< of a label: name of the control that it heads
};

struct TabDescription {
  std::string_view caption;
  char mnemonic;
};

/// An entry of the menu tree; those of a submenu follow it one level deeper.
struct MenuDescription {
  enum class Mark { None, Off, On };
  int level;
  std::string_view name;
  std::string_view caption;  ///< "-" for a separator
  Mark mark = Mark::None;    ///< the check mark ahead of the start-up
  bool enabled = true;       ///< a submenu that is not can't be opened
};

/// Client area of the window in twips, 1440 to the inch.
inline constexpr int clientWidth = 9390;
inline constexpr int clientHeight = 6720;

}  // namespace monitra::shell
