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

/// Arrows and their value in one; the arrows themselves are no children of their own.
class SpinArrowsAccess : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SpinArrowsAccess(SpinArrows* arrows)
      : QAccessibleWidget(arrows, QAccessible::SpinBox), arrows_(arrows) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

  QStringList actionNames() const override { return {increaseAction(), decreaseAction()}; }
  void doAction(const QString& action) override {
    if (action == increaseAction()) Q_EMIT arrows_->upPressed();
    if (action == decreaseAction()) Q_EMIT arrows_->downPressed();
  }

  QVariant currentValue() const override { return arrows_->value(); }
  void setCurrentValue(const QVariant& /*value*/) override {}  // it is stepped, and only so
  QVariant minimumValue() const override { return arrows_->min(); }
  QVariant maximumValue() const override { return arrows_->max(); }
  QVariant minimumStepSize() const override { return 1; }

 private:
  SpinArrows* arrows_;
};

class LedBarAccess : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit LedBarAccess(LedBar* bar)
      : QAccessibleWidget(bar, QAccessible::ProgressBar), bar_(bar) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QVariant currentValue() const override { return bar_->level(); }
  void setCurrentValue(const QVariant& /*value*/) override {}  // it only shows
  QVariant minimumValue() const override { return 0; }
  QVariant maximumValue() const override { return LedBar::full; }
  QVariant minimumStepSize() const override { return 1; }

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
