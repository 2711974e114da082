#pragma once

#include <QString>
#include <QWidget>
#include <string_view>
#include <type_traits>

#include "shell/control_name.h"
#include "shell/lap.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace monitra::widgets {
class JogButton;
class Picture;
class SpinArrows;
}  // namespace monitra::widgets

namespace monitra::desktop {

/// Whether a control of the kind shows as this widget.
template <class Widget>
consteval bool isShownBy(shell::Kind kind) {
  using shell::Kind;
  const auto is = [kind](auto... kinds) { return ((kind == kinds) || ...); };
  if (std::is_same_v<Widget, QCheckBox>) return is(Kind::CheckBox);
  if (std::is_same_v<Widget, QComboBox>) return is(Kind::DropDownList);
  if (std::is_same_v<Widget, QGroupBox>) return is(Kind::Frame);
  if (std::is_same_v<Widget, QLabel>) return is(Kind::Label, Kind::BoxedLabel, Kind::StatusLine);
  if (std::is_same_v<Widget, QLineEdit>) return is(Kind::Instrument, Kind::TextBox);
  if (std::is_same_v<Widget, QListWidget>) return is(Kind::ListBox);
  if (std::is_same_v<Widget, QPlainTextEdit>) return is(Kind::TextArea);
  if (std::is_same_v<Widget, QPushButton>)
    return is(Kind::PushButton, Kind::NarrowButton, Kind::ToggleButton);
  if (std::is_same_v<Widget, QRadioButton>) return is(Kind::OptionButton);
  if (std::is_same_v<Widget, QTabWidget>) return is(Kind::TabStrip);
  if (std::is_same_v<Widget, widgets::JogButton>) return is(Kind::HoldButton);
  if (std::is_same_v<Widget, widgets::Picture>) return is(Kind::Picture);
  if (std::is_same_v<Widget, widgets::SpinArrows>) return is(Kind::SpinButton);
  return false;
}

/// The name of a control that shows as a certain widget; that of any other one doesn't compile.
template <class Widget>
struct NameOf : shell::ControlName {
  consteval NameOf(const char* name, int index = -1) : ControlName(name, index) {
    if (!isShownBy<Widget>(entry().kind)) throw "the control shows as another widget";
  }
};
template <class Widget>
struct ArrayOf : shell::ControlArray {
  consteval ArrayOf(const char* name) : ControlArray(name) {
    if (!isShownBy<Widget>(kind())) throw "the controls show as other widgets";
  }
};

/// Makes the widgets of the window description: each of the kind, with the words and in the state
/// that its entry tells, named for a screen reader, and bound to its control in the model. How
/// they look beyond that and where they stand is up to whoever asks for them.
class WidgetMaker {
 public:
  /// The Lap must outlive the widgets.
  explicit WidgetMaker(shell::Lap& lap) : lap_(lap) {}

  /// The widget of a control, or of an element of a control array, to be made once. What is
  /// constant is checked by the compiler: make<QLabel>("Cim"), make({"Label25", 1}).
  QWidget* make(shell::ControlName control) const;
  QWidget* make(shell::ControlArray array, int index) const { return make(array[index]); }
  template <class Widget>
  Widget* make(NameOf<Widget> control) const {
    return dynamic_cast<Widget*>(make(static_cast<shell::ControlName>(control)));
  }
  template <class Widget>
  Widget* make(ArrayOf<Widget> array, int index) const {
    return dynamic_cast<Widget*>(make(array[index]));
  }

  shell::Lap& lap() const { return lap_; }

 private:
  shell::Lap& lap_;
};

/// A caption for a widget that marks the letter of its mnemonic by an ampersand; 0: it has none.
QString withMnemonic(std::string_view caption, char mnemonic);

/// "name" or "name(index)", which is what the widget of a control is called.
QString objectName(std::string_view name, int index);

/// Joins the labels that are there to the widgets that they head, for the keyboard and for a screen
/// reader.
void joinBuddies(const QWidget& window);

}  // namespace monitra::desktop
