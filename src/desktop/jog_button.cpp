#include "desktop/jog_button.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWindow>

#include "desktop/bindings.h"

namespace monitra::desktop {

namespace {

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

}  // namespace

JogButton::JogButton(Qt::ArrowType arrow, int side, controls::HoldButton& control)
    : arrow_(arrow), control_(control) {
  setFixedSize(side, side);
  setMouseTracking(true);
  bind(this, control);
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] { control_.release(); });
}

bool JogButton::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
      window()->installEventFilter(this);
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::UngrabMouse:
    case QEvent::TouchCancel:
      control_.release();
      break;
    default:
      break;
  }
  return QPushButton::event(event);
}

bool JogButton::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowBlocked:
    case QEvent::WindowStateChange:
    case QEvent::Hide:
    case QEvent::Close:
      control_.release();
      break;
    default:
      break;
  }
  return false;
}

void JogButton::mousePressEvent(QMouseEvent* event) {
  byKey_ = false;
  control_.press();
  event->accept();
}

void JogButton::mouseReleaseEvent(QMouseEvent* event) {
  control_.release();
  event->accept();
}

void JogButton::mouseMoveEvent(QMouseEvent* event) {
  checkMouse(event->buttons());
}

void JogButton::enterEvent(QEnterEvent* event) {
  QPushButton::enterEvent(event);
  checkMouse(event->buttons());
}

void JogButton::checkMouse(Qt::MouseButtons buttons) {
  // The release has gone elsewhere.
  if (buttons == Qt::NoButton && !byKey_) control_.release();
}

void JogButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QPushButton::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  byKey_ = true;
  control_.press();
}

void JogButton::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QPushButton::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) control_.release();
}

void JogButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().buttonText());
  painter.translate(rect().toRectF().center());
  painter.rotate(turn(arrow_));
  painter.drawPolygon(upArrow(width() * 0.5));
}

}  // namespace monitra::desktop
