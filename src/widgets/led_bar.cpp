#include "widgets/led_bar.h"

#include <QAccessible>
#include <QPainter>

#include "widgets/bindings.h"

namespace monitra::widgets {

namespace {

constexpr int lights = 24;

QColor lightColour(const controls::LedMeter& meter, double top) {
  if (top <= meter.Limit1) return {0x20, 0xE0, 0x40};
  return top <= meter.Limit2 ? QColor(0xFF, 0xD8, 0x20) : QColor(0xFF, 0x38, 0x28);
}

}  // namespace

LedBar::LedBar(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setMinimumSize(26, lights * 5);
}

void LedBar::follow(controls::LedMeter& meter) {
  meter_ = &meter;
  for (auto* property : {&meter.Level, &meter.Limit1, &meter.Limit2}) {
    keep(this, property->observe([this] { update(); }));
  }
  const auto speak = [this] {
    QAccessibleValueChangeEvent changed(this, level());
    QAccessible::updateAccessibility(&changed);
  };
  keep(this, meter.Level.observe(speak));
}

void LedBar::paintEvent(QPaintEvent* /*event*/) {
  constexpr double border = 3;
  constexpr double gap = 1;
  constexpr int dark = 450;
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  if (meter_ == nullptr) return;
  const double pitch = (height() - 2 * border) / lights;
  for (int n = 0; n < lights; ++n) {
    const double foot = static_cast<double>(full) * n / lights;
    const double top = static_cast<double>(full) * (n + 1) / lights;
    // A light is on from the middle of its stretch.
    const bool on = level() > (foot + top) / 2;
    const QColor colour = lightColour(*meter_, top);
    painter.fillRect(
        QRectF(border, height() - border - (n + 1) * pitch, width() - 2 * border, pitch - gap),
        on ? colour : colour.darker(dark));
  }
}

}  // namespace monitra::widgets
