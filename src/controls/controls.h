#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/property.h"

/// The controls of the window as plain values with events. Properties are set by the program;
/// the methods are what a user can do to the control, and change nothing while it is disabled.
namespace monitra::controls {

/// A control's event that carries no value. There is one slot, for the program's handler.
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;
  ~Event() = default;

  void handle(std::function<void()> handler) { handler_ = std::move(handler); }
  void raise() const {
    if (handler_) handler_();
  }

 private:
  std::function<void()> handler_;
};

/// 0x00BBGGRR, or with the top bit set one of the desktop's own colours.
using Colour = std::uint32_t;

namespace colour {
inline constexpr Colour red = 0xFF;
inline constexpr Colour green = 0xFF00;
inline constexpr Colour yellow = 0xFFFF;
inline constexpr Colour windowText = 0x80000008;
inline constexpr Colour buttonFace = 0x8000000F;
inline constexpr bool ofDesktop(Colour value) {
  return (value & 0x80000000) != 0;
}
}  // namespace colour

struct Form {
  Property<std::string> Caption;
};

struct Label {
  explicit Label(bool enabled = true) : Enabled(enabled) {}

  Property<std::string> Caption;
  Property<Colour> BackColor{colour::buttonFace};
  Property<bool> Enabled;
  Property<bool> Visible{true};
};

/// How much a text matters: plain information, something done, something to look after, a fault.
enum class Status { Plain, Done, Warning, Fault };

/// A label that tells how things stand. Its text comes with its kind, so only show() and clear()
/// set them, and who observes the caption finds both.
class StatusLabel : public Label {
 public:
  /// No text has no kind.
  void show(Status kind, const std::string& text) {
    if (kind != kind_ && Caption.get() == text) Caption = std::string();
    kind_ = text.empty() ? Status::Plain : kind;
    Caption = text;
  }
  void clear() { show(Status::Plain, {}); }

  Status kind() const { return kind_; }

 private:
  Status kind_ = Status::Plain;
};

/// A group of controls with a border.
struct Frame {
  explicit Frame(bool enabled = true) : Enabled(enabled) {}

  Property<bool> Enabled;
};

/// A straight line of a drawing.
struct Line {
  explicit Line(bool visible = true) : Visible(visible) {}

  Property<bool> Visible;
};

/// The change event is that of Text, typed or assigned.
struct TextBox {
  explicit TextBox(std::string text = {}, bool locked = false)
      : Text(std::move(text)), Locked(locked) {}

  /// The user has edited the text, which now reads as given; it is one line, so a pasted text ends
  /// at its first line break. A locked box only shows.
  void type(const std::string& text) {
    if (Enabled && !Locked) Text = text.substr(0, text.find_first_of("\r\n"));
  }

  Property<std::string> Text;
  Property<Colour> ForeColor{colour::windowText};
  Property<bool> Enabled{true};
  const bool Locked;
};

/// Two arrows and a value; the change event is that of Value. A press raises SpinUp or SpinDown
/// first, at a limit too, and moves the value afterwards.
struct SpinButton {
  SpinButton(int min, int max, int value) : Value(min, max, value) {}

  void pressUp() { press(SpinUp, +1); }
  void pressDown() { press(SpinDown, -1); }

  BoundedProperty Value;
  Property<bool> Enabled{true};
  Event SpinUp;
  Event SpinDown;

 private:
  void press(const Event& spin, int step) {
    if (!Enabled) return;
    spin.raise();
    Value = Value + step;
  }
};

struct CheckBox {
  void click() {
    if (Enabled) Checked = !Checked;
  }

  Property<std::string> Caption;
  Property<bool> Checked;
  Property<bool> Enabled{true};
};

struct PushButton {
  explicit PushButton(bool enabled = true) : Enabled(enabled) {}

  void click() { (Enabled ? Click : Refused).raise(); }

  Property<bool> Enabled;
  Event Click;
  Event Refused;  ///< a click while it is disabled, for a word on why it is
};

/// A button that acts while it is held. What has gone down always comes up: a button that is
/// disabled while it is held comes up by itself.
struct HoldButton {
  explicit HoldButton(bool enabled = true) : Enabled(enabled) {
    Enabled.handle([this] {
      if (!Enabled) release();
    });
  }

  /// A mouse button has gone down on it; one more while it is held counts too.
  void press() {
    if (!Enabled) return Refused.raise();
    Held = true;
    MouseDown.raise();
  }
  /// It has come up, or nobody can be sure any more that it is still down.
  void release() {
    if (!Held) return;
    Held = false;
    MouseUp.raise();
  }

  Property<bool> Held;  ///< set by press and release only
  Property<bool> Enabled;
  Event MouseDown;
  Event MouseUp;
  Event Refused;  ///< a press while it is disabled, for a word on why it is
};

/// A button that stays in until the next press; the click event is that of Value.
struct ToggleButton {
  explicit ToggleButton(bool enabled = true) : Enabled(enabled) {}

  void click() {
    if (Enabled) Value = !Value;
  }

  Property<bool> Value;  ///< true while it is in
  Property<bool> Enabled;
};

/// One of a group of buttons, of which at most one is selected. The click event comes when it
/// becomes selected, by the user or by an assignment, with the others no longer selected.
struct OptionButton {
  OptionButton() {
    Value.handle([this] {
      if (!Value) return;
      for (OptionButton* const other : others) other->Value = false;
      Click.raise();
    });
  }

  void click() {
    if (Enabled) Value = true;
  }

  Property<bool> Value;
  Property<bool> Enabled{true};
  Event Click;
  std::vector<OptionButton*> others;  ///< of its group; they live as long as this one is used
};

/// A list, not empty, from which one entry is always selected; the click event is that of
/// ListIndex. An index outside the list selects the nearest entry.
struct PickList {
  explicit PickList(std::vector<std::string> items)
      : Items(std::move(items)), ListIndex(0, static_cast<int>(Items.size()) - 1, 0) {}

  void select(int index) {
    if (Enabled) ListIndex = index;
  }
  /// The selected entry.
  const std::string& text() const { return Items[static_cast<std::size_t>(ListIndex.get())]; }

  const std::vector<std::string> Items;
  BoundedProperty ListIndex;
  Property<bool> Enabled{true};
};

/// A bar from 0 to 100.
struct ProgressBar {
  Property<double> Value;
};

/// A light with words beside it, which the program turns on and off.
struct Lamp {
  Property<bool> On;
};

/// A bar of lights from 0, which is dark, to 100. Its colour changes at the two limits.
struct LedMeter {
  Property<int> Limit1{50};
  Property<int> Limit2{75};
  Property<int> Level;
};

/// While it is enabled the platform calls tick() every Interval milliseconds, for the first time
/// one interval after the start. An interval of 0 never ticks.
struct Timer {
  void tick() const {
    if (Enabled && Interval > 0) Tick.raise();
  }

  Property<int> Interval{100};
  Property<bool> Enabled;
  Event Tick;
};

struct MenuEntry {
  explicit MenuEntry(bool checked = false) : Checked(checked) {}

  void click() {
    if (Enabled) Click.raise();
  }

  Property<bool> Checked;
  Property<bool> Enabled{true};
  Event Click;
};

/// A row of tabs, one on top; the click event is that of Tab.
struct TabStrip {
  explicit TabStrip(int tabs) : Tab(0, tabs - 1, 0) {}

  BoundedProperty Tab;
  Event GotFocus;  ///< the row of tabs itself has got the keyboard's focus
};

}  // namespace monitra::controls
