#include "compare/curve_view.h"

#include <QPainter>
#include <QPolygonF>
#include <array>
#include <cmath>

#include "widgets/looks.h"
#include "widgets/text.h"

namespace monitra::compare {

namespace {

constexpr double margin = 8;
constexpr double perSecond = 1000;  // milliseconds

/// The round number of milliseconds between two marks of which some eight fit in.
double markEvery(double milliseconds) {
  constexpr double marks = 8;
  const double least = milliseconds / marks;
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least) return factor * power;
  }
  return 10 * power;
}

QString number(double milliseconds) {
  return QString::number(milliseconds, 'g', 4).replace(QLatin1Char('.'), QLatin1Char(','));
}

}  // namespace

CurveView::CurveView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void CurveView::show(const Picture& present, const Picture& behind, double until) {
  if (present == present_ && behind == behind_ && until == until_) return;
  present_ = present;
  behind_ = behind;
  until_ = until;
  update();
}

double CurveView::roundUp(double time) {
  if (time <= 0) return time;
  const double step = markEvery(time * perSecond) / 2 / perSecond;
  return std::ceil(time / step) * step;
}

QSize CurveView::sizeHint() const {
  const int line = fontMetrics().height();
  return {line * 26, line * 8};
}

QSize CurveView::minimumSizeHint() const {
  return sizeHint() * 3 / 4;
}

QRectF CurveView::curveArea() const {
  const double line = fontMetrics().height();
  return {margin, line + 2, width() - 2 * margin, height() - 4 * line - 6};
}

QRectF CurveView::rateArea() const {
  const double line = fontMetrics().height();
  return {margin, height() - line * 2, width() - 2 * margin, line * 0.6};
}

double CurveView::x(double time) const {
  const QRectF area = curveArea();
  return area.left() + area.width() * time / until_;
}

void CurveView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  if (!present_ || until_ <= 0) return;
  drawTimes(painter);
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  if (behind_ && behind_ != present_) drawCurve(painter, *behind_);
  constexpr double foremost = 2;  // pixels
  painter.setPen(QPen(palette().color(QPalette::Text), foremost));
  drawCurve(painter, *present_);
  drawMarks(painter);
  drawRates(painter);
}

void CurveView::drawTimes(QPainter& painter) const {
  const QRectF area = curveArea();
  const double every = markEvery(until_ * perSecond);
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawLine(area.bottomLeft(), area.bottomRight());
  const int marks = static_cast<int>(until_ * perSecond / every + 1e-6);
  for (int n = 0; n <= marks; ++n) {
    const double at = n * every;
    const double place = x(at / perSecond);
    painter.drawLine(QPointF(place, area.bottom()), QPointF(place, area.bottom() + 3));
    const QString text = number(at) + (n == marks ? QStringLiteral(" ms") : QString());
    const double wide = fontMetrics().horizontalAdvance(text);
    const double left = qBound(0.0, place - wide / 2, width() - wide);
    painter.drawText(QPointF(left, area.bottom() + 3 + fontMetrics().ascent()), text);
  }
}

void CurveView::drawCurve(QPainter& painter, const revisions::AxisPicture& picture) const {
  const QRectF area = curveArea();
  const auto place = [&](const timing::CurvePoint& point) {
    return QPointF(x(point.time), area.bottom() - point.level * (area.height() - 4));
  };
  const timing::AxisTimes& times = picture.times;
  const double pulses = (times.t2 + times.t3) * picture.edition.base;
  const double first = (times.tf + times.t1) * picture.edition.base;
  constexpr double apart = 2;  // pixels; what is closer is one surface
  const bool dense = x(pulses) - x(0) < apart;
  QPolygonF corners;
  for (const timing::CurvePoint& point :
       timing::currentCurve(times, picture.edition, dense ? first : until_)) {
    corners << place(point);
  }
  painter.setClipRect(area.adjusted(0, -2, 0, 1));
  painter.drawPolyline(corners);
  if (dense) {
    painter.fillRect(QRectF(place({first, 1}), place({until_, 0})), painter.pen().color());
  }
  painter.setClipping(false);
}

void CurveView::drawMarks(QPainter& painter) const {
  const QRectF area = curveArea();
  const timing::AxisTimes& times = present_->times;
  const double base = present_->edition.base;
  const std::array<std::pair<const char*, double>, 4> parts{
      {{"TF", times.tf}, {"T1", times.t1}, {"T2", times.t2}, {"T3", times.t3}}};
  const double endOfTf = x(times.tf * base);
  painter.setPen(QPen(QColor(0xE0, 0x20, 0x20), 1, Qt::DotLine));
  painter.drawLine(QPointF(endOfTf, area.top()), QPointF(endOfTf, area.bottom()));
  painter.setPen(palette().color(QPalette::Text));
  double from = 0;
  for (const auto& [name, units] : parts) {
    const double wide = fontMetrics().horizontalAdvance(QLatin1String(name));
    const double room = x((from + units) * base) - x(from * base);
    if (room >= wide) {
      painter.drawText(QPointF(x(from * base) + (room - wide) / 2, fontMetrics().ascent()),
                       QLatin1String(name));
    }
    from += units;
  }
}

void CurveView::drawRates(QPainter& painter) const {
  const QRectF area = rateArea();
  const double limit = std::min(present_->limitRate, present_->peakRate);
  const double peak = present_->peakRate;
  constexpr double beyond = 1.25;
  const double end = std::max(peak, present_->limitRate) * beyond;
  if (end <= 0) return;
  const auto place = [&](double rate) { return area.left() + area.width() * rate / end; };
  const auto fill = [&](double from, double to, QColor onLight, QColor onDark) {
    painter.fillRect(QRectF(QPointF(place(from), area.top()), QPointF(place(to), area.bottom())),
                     widgets::fitting(onLight, onDark));
  };
  fill(0, limit, QColor(0x9C, 0xCC, 0x9C), QColor(0x2E, 0x6B, 0x34));
  fill(limit, peak, QColor(0xF0, 0xD8, 0x90), QColor(0x7A, 0x5E, 0x14));
  fill(peak, end, QColor(0xE8, 0xA8, 0xA0), QColor(0x7E, 0x30, 0x2A));
  const double text = area.bottom() + fontMetrics().ascent() + 1;
  painter.setPen(palette().color(QPalette::Text));
  double taken = 0;
  for (const double rate : {limit, peak}) {
    const QString words = widgets::toQt(timing::speedText(rate, 0));
    const double wide = fontMetrics().horizontalAdvance(words);
    const double left = qBound(taken, place(rate) - wide / 2, width() - wide);
    painter.drawText(QPointF(left, text), words);
    painter.drawLine(QPointF(place(rate), area.top()), QPointF(place(rate), area.bottom() + 2));
    taken = left + wide + margin;
  }
}

}  // namespace monitra::compare
