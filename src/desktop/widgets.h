#pragma once

#include <QColor>
#include <QObject>
#include <QSize>
#include <string_view>

#include "controls/controls.h"
#include "desktop/bindings.h"
#include "desktop/words.h"

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace monitra::desktop {

/// The kinds of widgets that the tabs are made of, each with the words of the named control and
/// bound to it. An element of a control array has an index.

/// Any widget with a binding of its own.
template <class Widget, class Control>
Widget* bound(std::string_view name, Control& control, int index = -1) {
  auto* widget = new Widget;
  describe(widget, name, index);
  bind(widget, control);
  return widget;
}

/// A button of any kind with the fixed caption of the control.
template <class Button, class Control>
Button* wordedButton(std::string_view name, Control& control, int index = -1) {
  auto* button = bound<Button>(name, control, index);
  button->setText(caption(name));
  return button;
}

/// A frame with the fixed caption of the control.
QGroupBox* wordedFrame(std::string_view name);

/// A picture from the program's resources, in this size.
QLabel* picture(std::string_view name, const char* file, QSize size, int index = -1);
inline constexpr QSize motorPicture{60, 56};

/// A label with a border and its text in the middle.
QLabel* framedLabel(std::string_view name, controls::Label& control);

/// A text box as wide as this many figures.
QLineEdit* numberBox(std::string_view name, controls::TextBox& control, int characters,
                     int index = -1);

/// The width of such a box beside this widget.
int numberBoxWidth(const QWidget& widget, int characters);

/// A row without margins.
QHBoxLayout* flatRow(QWidget* parent = nullptr);

void makeBold(QWidget* widget);

/// The colour of a label's text, or where the theme is dark the second one, if there is one.
void setTextColour(QWidget* label, QColor colour, QColor onDark = {});

/// An event filter that keeps the wheel from a widget without the focus, whose value it would
/// change unnoticed.
class WheelNeedsFocus : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace monitra::desktop
