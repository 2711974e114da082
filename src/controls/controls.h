#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/property.h"

/// The controls of the window as plain values with events. Properties are set by the program;
/// the methods are what a user can do to the control, and do nothing while it is disabled.
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

struct Form {
  Property<std::string> Caption;
};

struct Label {
  explicit Label(std::string caption = {}) : Caption(std::move(caption)) {}

  Property<std::string> Caption;
  Property<bool> Enabled{true};
  Property<bool> Visible{true};
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
  explicit CheckBox(std::string caption = {}) : Caption(std::move(caption)) {}

  void click() {
    if (Enabled) Checked = !Checked;
  }

  Property<std::string> Caption;
  Property<bool> Checked;
  Property<bool> Enabled{true};
};

struct PushButton {
  explicit PushButton(bool enabled = true) : Enabled(enabled) {}

  void click() {
    if (Enabled) Click.raise();
  }

  Property<bool> Enabled;
  Event Click;
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
};

}  // namespace monitra::controls
