#include "desktop/led_bar.h"

#include <QPainter>

namespace monitra::desktop {

namespace {

constexpr int full = 100;
constexpr int lights = 24;

QColor lightColour(const controls::LedMeter& meter, double top) {
  if (top <= meter.Limit1) return {0x20, 0xE0, 0x40};
  return top <= meter.Limit2 ? QColor(0xFF, 0xD8, 0x20) : QColor(0xFF, 0x38, 0x28);
}

}  // namespace

LedBar::LedBar(controls::LedMeter& control, QWidget* parent) : QWidget(parent), control_(control) {
  for (auto* property : {&control_.Level, &control_.Limit1, &control_.Limit2}) {
    property->observe([this] { update(); });
  }
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setMinimumSize(26, lights * 5);
}

void LedBar::paintEvent(QPaintEvent* /*event*/) {
  constexpr double border = 3;
  constexpr double gap = 1;
  constexpr int dark = 450;
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);
  const double pitch = (height() - 2 * border) / lights;
  for (int n = 0; n < lights; ++n) {
    const double foot = static_cast<double>(full) * n / lights;
    const double top = static_cast<double>(full) * (n + 1) / lights;
    // A light is on from the middle of its stretch.
    const bool on = control_.Level > (foot + top) / 2;
    const QColor colour = lightColour(control_, top);
    painter.fillRect(
        QRectF(border, height() - border - (n + 1) * pitch, width() - 2 * border, pitch - gap),
        on ? colour : colour.darker(dark));
  }
}

}  // namespace monitra::desktop
