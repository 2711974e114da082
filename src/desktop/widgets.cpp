#include "desktop/widgets.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "desktop/bindings.h"
#include "desktop/spin_arrows.h"
#include "desktop/words.h"

namespace monitra::desktop {

QHBoxLayout* flatRow(QWidget* parent) {
  auto* row = new QHBoxLayout(parent);
  row->setContentsMargins(0, 0, 0, 0);
  return row;
}

QLabel* boundLabel(std::string_view name, controls::Label& control, int index) {
  auto* label = new QLabel;
  describe(label, name, index);
  bind(label, control);
  return label;
}

QLabel* framedLabel(std::string_view name, controls::Label& control) {
  QLabel* const label = boundLabel(name, control);
  label->setFrameShape(QFrame::StyledPanel);
  label->setFrameShadow(QFrame::Sunken);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

void makeBold(QWidget* widget) {
  QFont font = widget->font();
  font.setBold(true);
  widget->setFont(font);
}

int numberBoxWidth(const QWidget& widget, int characters) {
  constexpr int frame = 14;
  QFont bold = widget.font();
  bold.setBold(true);
  return QFontMetrics(bold).horizontalAdvance(QLatin1Char('0')) * characters + frame;
}

QLineEdit* numberBox(std::string_view name, controls::TextBox& control, int characters, int index) {
  auto* box = new QLineEdit;
  describe(box, name, index);
  box->setAlignment(Qt::AlignCenter);
  box->setFixedWidth(numberBoxWidth(*box, characters));
  bind(box, control);
  return box;
}

SpinArrows* boundArrows(std::string_view name, controls::SpinButton& control, int index) {
  auto* arrows = new SpinArrows;
  describe(arrows, name, index);
  bind(arrows, control);
  return arrows;
}

bool WheelNeedsFocus::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
  event->ignore();
  return true;
}

}  // namespace monitra::desktop
