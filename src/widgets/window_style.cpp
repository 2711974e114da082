#include "widgets/window_style.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include "widgets/svg_icon.h"

namespace monitra::widgets {

namespace {

constexpr double half = 0.5;  // where a thin line lies within its pixels
constexpr double radius = 2;

void drawFocus(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const QRectF edge = QRectF(option.rect).adjusted(half, half, -half, -half);
  // A light line beside a dark one shows on any ground.
  painter.setPen(option.palette.color(QPalette::Base));
  painter.drawRoundedRect(edge.adjusted(1, 1, -1, -1), radius, radius);
  painter.setPen(option.palette.color(QPalette::Highlight));
  painter.drawRoundedRect(edge, radius, radius);
  painter.restore();
}

/// What the toolkit's style gives the tab that is in front, which joins its page.
QColor pageGround(const QPalette& palette) {
  constexpr int bright = 180, part = 6, brighter = 104;
  const QColor button = palette.color(QPalette::Button);
  return button.lighter(100 + qMax(1, (bright - qGray(button.rgb())) / part)).lighter(brighter);
}

/// So much of the text's colour in that of the ground, in percent.
QColor shaded(const QPalette& palette, int share) {
  const QColor ground = pageGround(palette),
               text = palette.color(QPalette::Active, QPalette::WindowText);
  const auto mixed = [share](int from, int to) { return from + (to - from) * share / 100; };
  return {mixed(ground.red(), text.red()), mixed(ground.green(), text.green()),
          mixed(ground.blue(), text.blue())};
}

/// An area with an edge. Its ground is opaque: to mix colours the toolkit would start threads.
void drawPane(const QRect& where, const QColor& ground, const QColor& edge, QPainter& painter) {
  painter.save();
  painter.fillRect(where.adjusted(1, 1, -1, -1), ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(where).adjusted(half, half, -half, -half), radius, radius);
  painter.restore();
}

}  // namespace

WindowStyle::WindowStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void WindowStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  if (element == PE_FrameFocusRect) return drawFocus(*option, *painter);
  const QPalette& palette = option->palette;
  constexpr int pageEdge = 30, boxEdge = 20, boxGround = 3;  // in percent
  if (element == PE_FrameTabWidget) {
    return drawPane(option->rect, pageGround(palette), shaded(palette, pageEdge), *painter);
  }
  if (element != PE_FrameGroupBox) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  constexpr int gap = 3;
  const auto* const box = qobject_cast<const QGroupBox*>(widget);
  const bool titled = box != nullptr && !box->title().isEmpty();
  const int top = gap + (titled ? qMax(pixelMetric(PM_IndicatorHeight, option, widget),
                                       option->fontMetrics.height())
                                : 0);
  drawPane(option->rect.adjusted(0, top, 0, 0), shaded(palette, boxGround),
           shaded(palette, boxEdge), *painter);
}

QIcon WindowStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
  if (icon != SP_ToolBarHorizontalExtensionButton) {
    return QProxyStyle::standardIcon(icon, option, widget);
  }
  return svgIcon(QStringLiteral(":/pictures/more.svg"));
}

}  // namespace monitra::widgets
