#include "desktop/status_line.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace monitra::desktop {

QSize StatusLine::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

QSize StatusLine::sizeHint() const {
  return minimumSizeHint();
}

bool StatusLine::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) setToolTip(Qt::convertFromPlainText(text()));
  return QLabel::event(event);
}

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QString fitting = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fitting, foregroundRole());
}

}  // namespace monitra::desktop
