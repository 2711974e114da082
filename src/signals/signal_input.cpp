#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "signals/signal_view.h"

/// What the user does to the view with pointer and keys.
namespace monitra::signals {

namespace {

constexpr double keyZoom = 1.5;

}  // namespace

void SignalView::wheelEvent(QWheelEvent* event) {
  constexpr double notch = 120;
  constexpr double zoomOfNotch = 1.25;
  constexpr double scrollOfNotch = 60;
  const QPoint turned = event->angleDelta();
  if ((event->modifiers() & Qt::ShiftModifier) != 0 ||
      std::abs(turned.x()) > std::abs(turned.y())) {
    const int way = turned.x() != 0 ? turned.x() : turned.y();
    scrollBy(-way / notch * scrollOfNotch);
  } else {
    const double x = event->position().x() - layout_.levels.left();
    zoomAt(std::pow(zoomOfNotch, turned.y() / notch), std::clamp(x, 0.0, 1.0 * scale_.width()));
  }
  event->accept();
}

void SignalView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->pos();
  dragging_ = false;
}

void SignalView::mouseMoveEvent(QMouseEvent* event) {
  constexpr int tremble = 3;
  const QPoint where = event->pos();
  const bool inPlot = where.x() >= layout_.levels.left();
  pointer_ = inPlot ? std::optional(where) : std::nullopt;
  if (pressed_ && (event->buttons() & Qt::LeftButton) != 0) {
    dragging_ = dragging_ || (where - *pressed_).manhattanLength() > tremble;
    if (dragging_) {
      scrollBy(pressed_->x() - where.x());
      pressed_ = where;
    }
  }
  if (pointed) pointed();
}

void SignalView::mouseReleaseEvent(QMouseEvent* event) {
  const bool clicked = pressed_ && !dragging_;
  pressed_.reset();
  dragging_ = false;
  if (!clicked) return;
  if (const auto number = rowAt(event->pos())) choose(*number);
  if (event->pos().x() < layout_.levels.left()) return;
  const bool second =
      event->button() == Qt::RightButton || (event->modifiers() & Qt::ShiftModifier) != 0;
  setCursor(second ? 1 : 0, timeAt(event->pos()));
}

void SignalView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->pos().x() >= layout_.levels.left()) goTo(timeAt(event->pos()));
}

void SignalView::leaveEvent(QEvent* /*event*/) {
  pointer_.reset();
  if (pointed) pointed();
}

void SignalView::keyPressEvent(QKeyEvent* event) {
  if (trace_ == nullptr || !(moveByKey(event->key()) || setByKey(event->key()))) {
    return QWidget::keyPressEvent(event);
  }
  tellByKey();
}

bool SignalView::moveByKey(int key) {
  const double page = scale_.width();
  switch (key) {
    case Qt::Key_Left:
      scrollBy(-page / 10);
      return true;
    case Qt::Key_Right:
      scrollBy(page / 10);
      return true;
    case Qt::Key_PageUp:
      scrollBy(-page);
      return true;
    case Qt::Key_PageDown:
      scrollBy(page);
      return true;
    case Qt::Key_Home:
      goTo(trace_->start());
      return true;
    case Qt::Key_End:
      goTo(trace_->end());
      return true;
    case Qt::Key_Plus:
      zoom(keyZoom);
      return true;
    case Qt::Key_Minus:
      zoom(1 / keyZoom);
      return true;
    case Qt::Key_F:
      fit();
      return true;
    default:
      return false;
  }
}

bool SignalView::setByKey(int key) {
  switch (key) {
    case Qt::Key_L:
      setFollows(!follows_);
      return true;
    case Qt::Key_A:
    case Qt::Key_B:
      setCursor(key == Qt::Key_A ? 0 : 1, middle());
      return true;
    case Qt::Key_Escape:
      if (!cursors_[0] && !cursors_[1]) return false;
      setCursor(0, {});
      setCursor(1, {});
      return true;
    case Qt::Key_Up:
      if (chosen_ > 0) choose(chosen_ - 1);
      return true;
    case Qt::Key_Down:
      if (chosen_ + 1 < rows_.size()) choose(chosen_ + 1);
      return true;
    default:
      return false;
  }
}

/// Only keys speak: a pointer that moves would never let a screen reader finish.
void SignalView::tellByKey() {
  pointer_.reset();
  setAccessibleDescription(pointedText() + QStringLiteral(" ") + cursorText());
  if (pointed) pointed();
}

}  // namespace monitra::signals
