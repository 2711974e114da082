#include "desktop/line_drawing.h"

#include <QLabel>
#include <QPainter>

#include "desktop/widgets.h"

namespace monitra::desktop {

LineDrawing::LineDrawing(const Content& content, double scale, const LineControl& controlOf,
                         QWidget* parent)
    : QWidget(parent), content_(content), scale_(scale), controlOf_(controlOf) {
  setFixedSize(qRound(content_.area.width() * scale), qRound(content_.area.height() * scale));
  for (const auto& line : content_.lines) {
    if (controls::Line* const control = controlOf_(line.name)) {
      control->Visible.observe([this] { update(); });
    }
  }
  for (const auto& words : content_.labels) {
    QLabel* const label = wordedLabel(words.name, this);
    makeBold(label);
    label->setEnabled(words.enabled);
    label->adjustSize();
    label->move(place(words.x, words.y));
  }
}

QPoint LineDrawing::place(int x, int y) const {
  return {qRound((x - content_.area.x()) * scale_), qRound((y - content_.area.y()) * scale_)};
}

void LineDrawing::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPen solid(palette().color(QPalette::WindowText), 1);
  const QPen marker(QColor(0xE0, 0x20, 0x20), 1, Qt::DotLine);
  const QPointF middleOfPixel(0.5, 0.5);
  for (const auto& line : content_.lines) {
    const controls::Line* const control = controlOf_(line.name);
    if (control != nullptr && !control->Visible) continue;
    painter.setPen(line.marker ? marker : solid);
    painter.setRenderHint(QPainter::Antialiasing, line.x1 != line.x2 && line.y1 != line.y2);
    painter.drawLine(place(line.x1, line.y1) + middleOfPixel,
                     place(line.x2, line.y2) + middleOfPixel);
  }
}

}  // namespace monitra::desktop
