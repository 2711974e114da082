#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>
#include <functional>

class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QStylePainter;
class QWidget;

namespace monitra::widgets {

/// What the program's windows have in common in their looks.

/// Around a page, and between what belongs together.
inline constexpr int pageMargin = 6;
inline constexpr int smallGap = 4;

/// Puts the text of a number's box in its middle and makes the box as wide as this many figures.
QLineEdit* asNumberBox(QLineEdit* box, int characters);

/// The width of such a box beside this widget.
int numberBoxWidth(const QWidget& widget, int characters);

/// A row without margins.
QHBoxLayout* flatRow(QWidget* parent = nullptr);

/// Makes the text bold, or gives it a font of its own. The label comes back.
QLabel* bold(QLabel* label);
QLabel* inFont(QLabel* label, const char* family, double points, bool italic = false);

/// Runs the function once: a moment later, when the window usually has its first frame, or before
/// the widget is first shown. For what takes a good part of a start and isn't seen at once, such as
/// a font of its own; it must leave the room that the widget asks for as it is.
void beforeSeen(QWidget* widget, std::function<void()> take);

/// Has a function adjust the widget's palette now and at each change of the desktop's theme or of
/// its focus.
void followTheme(QWidget* widget, std::function<void(QPalette& colours)> adjust);

/// The first colour in a light theme, the second in a dark one.
QColor fitting(QColor onLight, QColor onDark);

/// The same for the text of a label.
void setTextColour(QLabel* label, QColor onLight, QColor onDark);

/// What is to be looked after, what is wrong and a light that is on, in either theme.
inline constexpr QColor warningOnLight{0x8A, 0x4B, 0x00};
inline constexpr QColor warningOnDark{0xFF, 0xB7, 0x4D};
inline constexpr QColor faultOnLight{0xB0, 0x00, 0x20};
inline constexpr QColor faultOnDark{0xFF, 0x8A, 0x80};
inline constexpr QColor litOnLight{0xE0, 0x70, 0x00};
inline constexpr QColor litOnDark{0xFF, 0xB7, 0x4D};

/// Draws the mark of the keyboard's focus.
void drawFocus(QStylePainter& painter, const QWidget& widget, const QRect& where);

/// A thin frame, whose edges show at every scale, and which shows the keyboard's focus.
void giveThinFrame(QFrame* widget);

/// An event filter that keeps the wheel from a widget without the focus, whose value it would
/// change unnoticed.
class WheelNeedsFocus : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace monitra::widgets
