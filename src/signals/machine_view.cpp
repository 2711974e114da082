#include "signals/machine_view.h"

#include <QPainter>
#include <algorithm>

#include "controller/virtual_controller.h"
#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::signals {

using widgets::toQt;

namespace {

constexpr int axes = 3;
constexpr int lines = 4;
constexpr int air = 6;

QString directionText(int direction) {
  if (direction == 0) return QStringLiteral(" ");
  return direction > 0 ? QStringLiteral("→") : QStringLiteral("←");
}

}  // namespace

QString connectorName(std::size_t axis, int line) {
  constexpr int first = 17;
  constexpr int ofMotor = 6;
  constexpr int places[lines] = {0, 2, 3, 5};
  const int connector = first + ofMotor * static_cast<int>(axis) + places[line];
  return QStringLiteral("L%1 (CON%2)").arg(line + 1).arg(connector);
}

MachineView::MachineView(QWidget* parent) : QWidget(parent) {
  setAccessibleName(QStringLiteral("A gép, ahogy a vezérlő hagyja"));
}

void MachineView::setTrace(const wire::Trace* trace) {
  trace_ = trace;
  shown_.clear();
  refresh();
}

void MachineView::refresh() {
  const QString now = trace_ == nullptr ? QString() : toQt(controller::describe(trace_->machine()));
  if (now == shown_ && trace_ != nullptr) return;
  shown_ = now;
  setAccessibleDescription(shown_);
  update();
}

QSize MachineView::sizeHint() const {
  const int name = fontMetrics().horizontalAdvance(connectorName(2, 3)) + lineHeight();
  constexpr int path = 140;
  return {
      lines * name + 3 * air + fontMetrics().horizontalAdvance(QStringLiteral("X: −1000000 → ")),
      (axes + 1) * lineHeight() + path};
}

void MachineView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (trace_ == nullptr) return;
  painter.setPen(palette().color(QPalette::WindowText));
  for (std::size_t axis = 0; axis < axes; ++axis) {
    paintAxis(painter, axis, {0, static_cast<int>(axis) * lineHeight(), width(), lineHeight()});
  }
  const QRect sums(0, axes * lineHeight(), width(), lineHeight());
  painter.drawText(sums.adjusted(air, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, sumText());
  paintPath(painter, QRect(rect()).adjusted(air, sums.bottom() + air, -air, -air));
}

QString MachineView::sumText() const {
  const controller::Machine& machine = trace_->machine();
  QString text = QStringLiteral("Terhelés: %1%").arg(machine.loadPercent(), 0, 'f', 1);
  if (!trace_->layout().hasBoard) return text;
  const char* const spindle = !machine.spindle ? "ismeretlen" : *machine.spindle ? "be" : "ki";
  return text + QStringLiteral("    Marómotor: ") + QString::fromUtf8(spindle);
}

void MachineView::paintAxis(QPainter& painter, std::size_t axis, const QRect& row) const {
  const controller::Machine::Axis& of = trace_->machine().axes[axis];
  QString place = QString(QLatin1Char("XYZ"[axis]));
  if (trace_->layout().hasBoard) {
    place +=
        QStringLiteral(": %1 %2").arg(of.position()).arg(directionText(trace_->directions()[axis]));
  }
  const int size = fontMetrics().ascent() * 3 / 4;
  const int column = fontMetrics().horizontalAdvance(connectorName(2, 3)) + size + 2 * air;
  painter.drawText(row.adjusted(air, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, place);
  int x = row.right() - lines * column;
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  painter.setRenderHint(QPainter::Antialiasing);
  for (int line = 0; line < lines; ++line, x += column) {
    const bool on = (of.lines >> line & 1U) != 0;
    painter.setBrush(on ? QBrush(dark ? widgets::litOnDark : widgets::litOnLight)
                        : QBrush(Qt::NoBrush));
    painter.drawEllipse(QRectF(x, row.center().y() - size / 2.0, size, size));
    painter.drawText(QRect(x + size + air / 2, row.top(), column, row.height()),
                     Qt::AlignVCenter | Qt::AlignLeft, connectorName(axis, line));
  }
}

void MachineView::paintPath(QPainter& painter, const QRect& where) const {
  if (where.height() < lineHeight()) return;
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setBrush(palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(where);
  const auto& points = trace_->path().points();
  const auto [left, right] = std::ranges::minmax(points, {}, &wire::Path::Point::x);
  const auto [low, high] = std::ranges::minmax(points, {}, &wire::Path::Point::y);
  constexpr double margin = 1.1;
  const double span =
      static_cast<double>(std::max({right.x - left.x, high.y - low.y, 1L})) * margin;
  const double scale = std::min(where.width(), where.height()) / span;
  const QPointF middle(static_cast<double>(left.x + right.x) / 2,
                       static_cast<double>(low.y + high.y) / 2);
  QPolygonF way;
  for (const wire::Path::Point& point : points) {
    way << QPointF(where.center().x() + (static_cast<double>(point.x) - middle.x()) * scale,
                   where.center().y() - (static_cast<double>(point.y) - middle.y()) * scale);
  }
  painter.setPen(palette().color(QPalette::Text));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(way);
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawEllipse(way.last(), 3, 3);
  painter.drawText(where.adjusted(air, air / 2, 0, 0), Qt::AlignTop | Qt::AlignLeft,
                   QStringLiteral("Az út X-ben és Y-ban"));
}

}  // namespace monitra::signals
