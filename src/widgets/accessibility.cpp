#include "widgets/accessibility.h"

#include <QAccessibleWidget>

#include "widgets/jog_button.h"
#include "widgets/led_bar.h"
#include "widgets/picture.h"
#include "widgets/spin_arrows.h"

namespace monitra::widgets {

namespace {

class JogButtonAccess : public QAccessibleWidget {
 public:
  explicit JogButtonAccess(JogButton* button)
      : QAccessibleWidget(button, QAccessible::Button), button_(button) {}

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) button_->nudge();
  }

 private:
  JogButton* button_;
};

/// A widget with a number that a screen reader reads, but never sets.
class ValueAccess : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  void setCurrentValue(const QVariant& /*value*/) override {}
  QVariant minimumStepSize() const override { return 1; }
};

/// Arrows and their value in one; the arrows themselves are no children of their own.
class SpinArrowsAccess : public ValueAccess {
 public:
  explicit SpinArrowsAccess(SpinArrows* arrows)
      : ValueAccess(arrows, QAccessible::SpinBox), arrows_(arrows) {}

  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

  QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }
  void doAction(const QString& action) override {
    if (action == increaseAction()) Q_EMIT arrows_->upPressed();
    if (action == decreaseAction()) Q_EMIT arrows_->downPressed();
  }

  QVariant currentValue() const override { return arrows_->value(); }
  QVariant minimumValue() const override { return arrows_->min(); }
  QVariant maximumValue() const override { return arrows_->max(); }

 private:
  SpinArrows* arrows_;
};

class LedBarAccess : public ValueAccess {
 public:
  explicit LedBarAccess(LedBar* bar) : ValueAccess(bar, QAccessible::ProgressBar), bar_(bar) {}

  QVariant currentValue() const override { return bar_->level(); }
  QVariant minimumValue() const override { return 0; }
  QVariant maximumValue() const override { return LedBar::full; }

 private:
  LedBar* bar_;
};

QAccessibleInterface* accessOf(const QString& /*className*/, QObject* object) {
  if (auto* const jog = dynamic_cast<JogButton*>(object)) return new JogButtonAccess(jog);
  if (auto* const arrows = dynamic_cast<SpinArrows*>(object)) return new SpinArrowsAccess(arrows);
  if (auto* const bar = dynamic_cast<LedBar*>(object)) return new LedBarAccess(bar);
  if (auto* const picture = dynamic_cast<Picture*>(object)) {
    return new QAccessibleWidget(picture, QAccessible::Graphic);
  }
  return nullptr;
}

}  // namespace

void installAccessibility() {
  QAccessible::installFactory(accessOf);
}

}  // namespace monitra::widgets
