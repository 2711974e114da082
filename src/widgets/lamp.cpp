#include "widgets/lamp.h"

#include <QEvent>
#include <QPainter>

#include "widgets/looks.h"

namespace monitra::widgets {

Lamp::Lamp(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  setIndent(lightSize() + smallGap);
}

void Lamp::setOn(bool on) {
  if (on_ == on) return;
  on_ = on;
  update();
}

int Lamp::lightSize() const {
  constexpr int largest = 12;  // the words need the room
  return qMin(fontMetrics().ascent() * 3 / 4, largest);
}

void Lamp::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) setIndent(lightSize() + smallGap);
}

/// Dark it is a ring, so that the two can be told apart without colours.
void Lamp::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double size = lightSize();
  const QRectF light(1, (height() - size) / 2, size - 1, size - 1);
  const QColor rim = palette().color(QPalette::WindowText);
  painter.setPen(QPen(rim, 1));
  if (on_) painter.setBrush(fitting(litOnLight, litOnDark));
  painter.drawEllipse(light);
}

}  // namespace monitra::widgets
