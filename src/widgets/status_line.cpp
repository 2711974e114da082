#include "widgets/status_line.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

#include "widgets/looks.h"

namespace monitra::widgets {

namespace {

using controls::Status;

/// A tick, a triangle with an exclamation mark, or a disc with a cross, in the painter's pen.
void drawSign(QPainter& painter, const QRectF& where, Status kind, QColor ground) {
  constexpr double side = 16;
  constexpr double stroke = 2;
  const QColor ink = painter.pen().color();
  const auto pen = [](QColor colour) { return QPen(colour, stroke, Qt::SolidLine, Qt::RoundCap); };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(where.topLeft());
  painter.scale(where.width() / side, where.height() / side);
  painter.setBrush(ink);
  if (kind == Status::Done) {
    painter.setPen(pen(ink));
    painter.drawLines(QList<QLineF>{{2, 9, 6, 13}, {6, 13, 14, 3}});
  } else if (kind == Status::Warning) {
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({{8, 1}, {16, 15}, {0, 15}}));
    painter.setPen(pen(ground));
    painter.drawLines(QList<QLineF>{{8, 6, 8, 9.5}, {8, 12.5, 8, 12.6}});
  } else {
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setPen(pen(ground));
    painter.drawLines(QList<QLineF>{{5, 5, 11, 11}, {5, 11, 11, 5}});
  }
  painter.restore();
}

}  // namespace

void StatusLine::setKind(Status kind) {
  kind_ = kind;
  update();
}

QColor StatusLine::ink() const {
  switch (kind_) {
    case Status::Done:
      return fitting(QColor(0x00, 0x66, 0x22), QColor(0x7C, 0xD6, 0x8A));
    case Status::Warning:
      return fitting(warningOnLight, warningOnDark);
    case Status::Fault:
      return fitting(faultOnLight, faultOnDark);
    default:
      return palette().color(foregroundRole());
  }
}

int StatusLine::signWidth() const {
  constexpr int gap = 4;
  return kind_ == Status::Plain ? 0 : fontMetrics().ascent() + gap;
}

QSize StatusLine::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

QSize StatusLine::sizeHint() const {
  return minimumSizeHint();
}

bool StatusLine::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) setToolTip(Qt::convertFromPlainText(text()));
  return QLabel::event(event);
}

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(ink());
  const int side = fontMetrics().ascent();
  if (kind_ != Status::Plain) {
    drawSign(painter, QRectF(0, (height() - side) / 2.0, side, side), kind_,
             palette().color(QPalette::Window));
  }
  const QRect words = rect().adjusted(signWidth(), 0, 0, 0);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, words.width());
  style()->drawItemText(&painter, words, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        shown);
}

}  // namespace monitra::widgets
