#include "widgets/spin_arrows.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "widgets/looks.h"

namespace monitra::widgets {

namespace {

constexpr int margin = 1;

QSize arrowSize(const QFontMetrics& font) {
  const int height = qMax(13, font.height() * 3 / 4);
  return {height * 5 / 4 + 2, height};
}

}  // namespace

SpinArrows::SpinArrows(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(0);
  QToolButton* const up = addArrow(Qt::UpArrow);
  QToolButton* const down = addArrow(Qt::DownArrow);
  layout->addWidget(up);
  layout->addWidget(down);
  connect(up, &QToolButton::clicked, this, &SpinArrows::upPressed);
  connect(down, &QToolButton::clicked, this, &SpinArrows::downPressed);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SpinArrows::setRange(int min, int max) {
  min_ = min;
  max_ = max;
}

void SpinArrows::setValue(int value) {
  value_ = value;
  QAccessibleValueChangeEvent changed(this, value);
  QAccessible::updateAccessibility(&changed);
}

int SpinArrows::widthBeside(const QFontMetrics& font) {
  return arrowSize(font).width() + 2 * margin;
}

QToolButton* SpinArrows::addArrow(Qt::ArrowType type) {
  constexpr int repeatAfter = 350;
  constexpr int repeatEvery = 60;
  auto* arrow = new QToolButton(this);
  arrow->setArrowType(type);
  arrow->setAutoRepeat(true);
  arrow->setAutoRepeatDelay(repeatAfter);
  arrow->setAutoRepeatInterval(repeatEvery);
  arrow->setFocusPolicy(Qt::NoFocus);
  arrow->setFixedSize(arrowSize(fontMetrics()));
  arrow->setIconSize({arrow->height() / 2, arrow->height() / 2});
  return arrow;
}

void SpinArrows::serve(QWidget* widget) {
  served_ = widget;
  widget->installEventFilter(this);
}

bool SpinArrows::isFocused() const {
  return hasFocus() || (served_ != nullptr && served_->hasFocus());
}

bool SpinArrows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && pressByKey(*static_cast<QKeyEvent*>(event))) return true;
  if (event->type() == QEvent::Wheel && isFocused()) {
    pressByWheel(*static_cast<QWheelEvent*>(event));
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void SpinArrows::keyPressEvent(QKeyEvent* event) {
  if (!pressByKey(*event)) QWidget::keyPressEvent(event);
}

bool SpinArrows::pressByKey(const QKeyEvent& event) {
  if (!isEnabled() || event.modifiers().testFlag(Qt::ControlModifier)) return false;
  if (event.key() == Qt::Key_Up) {
    Q_EMIT upPressed();
  } else if (event.key() == Qt::Key_Down) {
    Q_EMIT downPressed();
  } else {
    return false;
  }
  return true;
}

void SpinArrows::wheelEvent(QWheelEvent* event) {
  if (isFocused()) {
    pressByWheel(*event);
  } else {
    event->ignore();
  }
}

void SpinArrows::pressByWheel(const QWheelEvent& event) {
  constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
  for (wheel_ += event.angleDelta().y(); wheel_ >= notch; wheel_ -= notch) Q_EMIT upPressed();
  for (; wheel_ <= -notch; wheel_ += notch) Q_EMIT downPressed();
}

void SpinArrows::paintEvent(QPaintEvent* /*event*/) {
  if (!hasFocus()) return;
  QStylePainter painter(this);
  drawFocus(painter, *this, rect());
}

void SpinArrows::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void SpinArrows::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace monitra::widgets
