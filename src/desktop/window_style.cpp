#include "desktop/window_style.h"

#include <QPainter>
#include <QStyleOption>

namespace monitra::desktop {

WindowStyle::WindowStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  if (element != PE_FrameFocusRect) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  constexpr double half = 0.5;
  constexpr double radius = 2;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setBrush(Qt::NoBrush);
  const QRectF edge = QRectF(option->rect).adjusted(half, half, -half, -half);
  // A light line beside a dark one shows on any ground.
  painter->setPen(option->palette.color(QPalette::Base));
  painter->drawRoundedRect(edge.adjusted(1, 1, -1, -1), radius, radius);
  painter->setPen(option->palette.color(QPalette::Highlight));
  painter->drawRoundedRect(edge, radius, radius);
  painter->restore();
}

}  // namespace monitra::desktop
