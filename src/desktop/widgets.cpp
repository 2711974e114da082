#include "desktop/widgets.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>

namespace monitra::desktop {

QHBoxLayout* flatRow(QWidget* parent) {
  auto* row = new QHBoxLayout(parent);
  row->setContentsMargins(0, 0, 0, 0);
  return row;
}

QGroupBox* wordedFrame(std::string_view name) {
  auto* frame = new QGroupBox(caption(name));
  describe(frame, name);
  return frame;
}

QLabel* picture(std::string_view name, const char* file, QSize size, int index) {
  auto* label = new QLabel;
  describe(label, name, index);
  label->setPixmap(QIcon(QString::fromUtf8(file)).pixmap(size, label->devicePixelRatio()));
  label->setFixedSize(size);
  return label;
}

QLabel* framedLabel(std::string_view name, controls::Label& control) {
  auto* label = bound<QLabel>(name, control);
  label->setFrameShape(QFrame::StyledPanel);
  label->setFrameShadow(QFrame::Sunken);
  label->setAlignment(Qt::AlignCenter);
  label->setContentsMargins(label->contentsMargins() + QMargins(4, 0, 4, 0));
  return label;
}

void makeBold(QWidget* widget) {
  QFont font = widget->font();
  font.setBold(true);
  widget->setFont(font);
}

void setTextColour(QWidget* label, QColor colour, QColor onDark) {
  QPalette colours = label->palette();
  const bool dark = colours.color(QPalette::Window).lightness() < 128;
  colours.setColor(QPalette::WindowText, dark && onDark.isValid() ? onDark : colour);
  label->setPalette(colours);
}

int numberBoxWidth(const QWidget& widget, int characters) {
  constexpr int frame = 14;
  QFont bold = widget.font();
  bold.setBold(true);
  return QFontMetrics(bold).horizontalAdvance(QLatin1Char('0')) * characters + frame;
}

QLineEdit* numberBox(std::string_view name, controls::TextBox& control, int characters, int index) {
  auto* box = bound<QLineEdit>(name, control, index);
  box->setAlignment(Qt::AlignCenter);
  box->setFixedWidth(numberBoxWidth(*box, characters));
  return box;
}

bool WheelNeedsFocus::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace monitra::desktop
