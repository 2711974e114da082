#include "widgets/jog_button.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QWindow>

#include "widgets/bindings.h"
#include "widgets/looks.h"

namespace monitra::widgets {

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

JogButton::JogButton(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::StrongFocus);
  // The pointer's place is asked for only because the answer has to be waited for.
  signOfLife_.setInterval(signOfLifeMilliseconds);
  connect(&signOfLife_, &QTimer::timeout, this, [] { QCursor::pos(); });
  keyHold_.setSingleShot(true);
  keyHold_.setInterval(keyMilliseconds);
  connect(&keyHold_, &QTimer::timeout, this, [this] {
    const bool goesOn = repeats_;
    release();
    repeats_ = goesOn;
  });
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] { release(); });
}

JogButton::~JogButton() {
  release();
}

void JogButton::setArrow(Qt::ArrowType arrow, int side) {
  arrow_ = arrow;
  setFixedSize(side, side);
}

void JogButton::serve(controls::HoldButton& control) {
  control_ = &control;
  keep(this, control.Held.observe([this] { showHeld(); }));
}

void JogButton::showHeld() {
  isHeld() ? signOfLife_.start() : signOfLife_.stop();
  if (!isHeld()) {
    keyHold_.stop();
    repeats_ = false;
  }
  update();
}

void JogButton::release() {
  repeats_ = false;
  if (control_ != nullptr) control_->release();
}

void JogButton::nudge() {
  const bool reachable = isVisible() && !window()->isMinimized() &&
                         QApplication::activeModalWidget() == nullptr &&
                         QApplication::activePopupWidget() == nullptr;
  if (!reachable) return;
  if (!isHeld()) control_->press();
  if (isHeld()) keyHold_.start();
}

bool JogButton::event(QEvent* event) {
  if (event->type() == QEvent::Show) window()->installEventFilter(this);
  if (interrupts(*event)) release();
  return QWidget::event(event);
}

bool JogButton::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (interrupts(*event)) release();
  return false;
}

void JogButton::mousePressEvent(QMouseEvent* /*event*/) {
  control_->press();
  keyHold_.stop();
  repeats_ = false;
}

void JogButton::mouseReleaseEvent(QMouseEvent* /*event*/) {
  release();
}

void JogButton::mouseMoveEvent(QMouseEvent* event) {
  checkMouse(event->buttons());
}

void JogButton::enterEvent(QEnterEvent* event) {
  checkMouse(event->buttons());
}

void JogButton::checkMouse(Qt::MouseButtons buttons) {
  // The release has gone elsewhere.
  if (buttons == Qt::NoButton && !keyHold_.isActive()) release();
}

void JogButton::keyPressEvent(QKeyEvent* event) {
  const bool heldByMouse = isHeld() && !keyHold_.isActive();
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && !heldByMouse) {
    if (!event->isAutoRepeat()) repeats_ = true;
    if (repeats_) nudge();
    return;
  }
  release();
  QWidget::keyPressEvent(event);
}

void JogButton::keyReleaseEvent(QKeyEvent* event) {
  const bool heldByMouse = isHeld() && !keyHold_.isActive();
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat() && !heldByMouse) release();
  QWidget::keyReleaseEvent(event);
}

void JogButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  option.initFrom(this);
  option.state |= isHeld() ? QStyle::State_Sunken : QStyle::State_Raised;
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().buttonText());
  painter.translate(rect().toRectF().center());
  painter.rotate(turn(arrow_));
  painter.drawPolygon(upArrow(width() * 0.5));
  if (!hasFocus()) return;
  painter.resetTransform();
  constexpr int inset = 3;
  drawFocus(painter, *this, rect().adjusted(inset, inset, -inset, -inset));
}

}  // namespace monitra::widgets
