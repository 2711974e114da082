#include "widgets/spin_arrows.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

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
  for (QToolButton* const arrow : {up, down}) {
    const int way = arrow == up ? 1 : -1;
    connect(arrow, &QToolButton::clicked, this, [this, arrow, way] {
      if (!arrow->isDown()) repeats_ = 0;
      press(way * (arrow->isDown() ? repetition() : 1));
    });
  }
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
  if (event->type() == QEvent::KeyPress) {
    const auto* const key = static_cast<QKeyEvent*>(event);
    const auto* const typed = qobject_cast<QLineEdit*>(watched);
    const bool moves = key->key() == Qt::Key_Home || key->key() == Qt::Key_End;
    const bool isOwn = moves && typed != nullptr && !typed->isReadOnly();
    if (!isOwn && pressByKey(*key)) return true;
  }
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
  constexpr int page = 10;
  if (!isEnabled() || event.modifiers().testFlag(Qt::ControlModifier)) return false;
  if (!event.isAutoRepeat()) repeats_ = 0;
  const auto once = [&] { return event.isAutoRepeat() ? repetition() : 1; };
  switch (event.key()) {
    case Qt::Key_Up:
      press(once());
      return true;
    case Qt::Key_Down:
      press(-once());
      return true;
    case Qt::Key_PageUp:
      press(page);
      return true;
    case Qt::Key_PageDown:
      press(-page);
      return true;
    case Qt::Key_Home:
      press(min_ - value_);
      return true;
    case Qt::Key_End:
      press(max_ - value_);
      return true;
    default:
      return false;
  }
}

void SpinArrows::press(int times) {
  for (int left = std::abs(times); left > 0; --left) {
    const int before = value_;
    times > 0 ? Q_EMIT upPressed() : Q_EMIT downPressed();
    if (value_ == before) return;
  }
}

int SpinArrows::repetition() {
  constexpr int doubledEvery = 10;
  constexpr int wholeRange = 25;  // repetitions, at the fastest
  constexpr int mostDoublings = 12;
  ++repeats_;
  return std::min(1 << std::min(repeats_ / doubledEvery, mostDoublings),
                  std::max(1, (max_ - min_) / wholeRange));
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
