#include "desktop/line_drawing.h"

#include <QLabel>
#include <QPainter>

#include "widgets/bindings.h"
#include "widgets/looks.h"

namespace monitra::desktop {

using namespace widgets;

LineDrawing::LineDrawing(const WidgetMaker& widgets, const Content& content, double scale)
    : origin_(content.area.topLeft()), scale_(scale) {
  setFixedSize(qRound(content.area.width() * scale), qRound(content.area.height() * scale));
  for (const auto& line : content.lines) {
    auto* const control = line.shownBy ? &(widgets.lap().setup.*line.shownBy) : nullptr;
    lines_.push_back({line, control});
    if (control != nullptr) keep(this, control->Visible.observe([this] { update(); }));
  }
  for (const auto& words : content.labels) {
    auto* const label = qobject_cast<QLabel*>(widgets.make(words.control));
    if (words.bold) bold(label);
    label->setParent(this);
    label->adjustSize();
    label->move(place(words.x, words.y));
  }
  setFixedSize(size().expandedTo(QSize(childrenRect().right() + 1, childrenRect().bottom() + 1)));
}

QPoint LineDrawing::place(int x, int y) const {
  return {qRound((x - origin_.x()) * scale_), qRound((y - origin_.y()) * scale_)};
}

void LineDrawing::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPen solid(palette().color(QPalette::WindowText), 1);
  const QPen marker(fitting(QColor(0xE0, 0x20, 0x20), QColor(0xFF, 0x60, 0x60)), 1, Qt::DotLine);
  const QPointF middleOfPixel(0.5, 0.5);
  for (const auto& [line, control] : lines_) {
    if (control != nullptr && !control->Visible) continue;
    painter.setPen(line.marker ? marker : solid);
    painter.setRenderHint(QPainter::Antialiasing, line.x1 != line.x2 && line.y1 != line.y2);
    painter.drawLine(place(line.x1, line.y1) + middleOfPixel,
                     place(line.x2, line.y2) + middleOfPixel);
  }
}

}  // namespace monitra::desktop
