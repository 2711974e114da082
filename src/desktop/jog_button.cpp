#include "desktop/jog_button.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWindow>

#include "desktop/bindings.h"

namespace monitra::desktop {

namespace {

constexpr int signOfLifeMilliseconds = 20;

QPolygonF upArrow(double size) {
  return QPolygonF({{0, -size / 2},
                    {size / 2, 0.05 * size},
                    {0.17 * size, 0.05 * size},
                    {0.17 * size, size / 2},
                    {-0.17 * size, size / 2},
                    {-0.17 * size, 0.05 * size},
                    {-size / 2, 0.05 * size}});
}

int turn(Qt::ArrowType arrow) {
  switch (arrow) {
    case Qt::RightArrow:
      return 90;
    case Qt::DownArrow:
      return 180;
    case Qt::LeftArrow:
      return 270;
    default:
      return 0;
  }
}

/// Whether the mouse can't be relied on any more once this has come to the button or its window.
bool interrupts(const QEvent& event) {
  switch (event.type()) {
    case QEvent::FocusOut:
    case QEvent::UngrabMouse:
    case QEvent::Hide:
    case QEvent::WindowBlocked:
    case QEvent::WindowStateChange:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

JogButton::JogButton(Qt::ArrowType arrow, int side, controls::HoldButton& control)
    : arrow_(arrow), control_(control) {
  setFixedSize(side, side);
  setMouseTracking(true);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::ClickFocus);
  bind(this, control);
  // The pointer's place is asked for only because the answer has to be waited for.
  signOfLife_.setInterval(signOfLifeMilliseconds);
  connect(&signOfLife_, &QTimer::timeout, this, [] { QCursor::pos(); });
  control_.Held.observe([this] { control_.Held ? signOfLife_.start() : signOfLife_.stop(); });
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] { control_.release(); });
}

bool JogButton::event(QEvent* event) {
  if (event->type() == QEvent::Show) window()->installEventFilter(this);
  if (interrupts(*event)) control_.release();
  return QWidget::event(event);
}

bool JogButton::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (interrupts(*event)) control_.release();
  return false;
}

void JogButton::mousePressEvent(QMouseEvent* /*event*/) {
  control_.press();
}

void JogButton::mouseReleaseEvent(QMouseEvent* /*event*/) {
  control_.release();
}

void JogButton::mouseMoveEvent(QMouseEvent* event) {
  checkMouse(event->buttons());
}

void JogButton::enterEvent(QEnterEvent* event) {
  checkMouse(event->buttons());
}

void JogButton::checkMouse(Qt::MouseButtons buttons) {
  // The release has gone elsewhere.
  if (buttons == Qt::NoButton) control_.release();
}

void JogButton::keyPressEvent(QKeyEvent* event) {
  control_.release();
  QWidget::keyPressEvent(event);
}

void JogButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  option.initFrom(this);
  option.state |= control_.Held ? QStyle::State_Sunken : QStyle::State_Raised;
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().buttonText());
  painter.translate(rect().toRectF().center());
  painter.rotate(turn(arrow_));
  painter.drawPolygon(upArrow(width() * 0.5));
}

}  // namespace monitra::desktop
