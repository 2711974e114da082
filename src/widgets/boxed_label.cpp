#include "widgets/boxed_label.h"

#include <QPainter>
#include <qdrawutil.h>

namespace monitra::widgets {

BoxedLabel::BoxedLabel(QWidget* parent) : QLabel(parent) {
  constexpr int air = 3;
  setMargin(air);
  setAlignment(Qt::AlignCenter);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void BoxedLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  qDrawPlainRect(&painter, rect(), palette().color(QPalette::Mid));
}

}  // namespace monitra::widgets
