#include "desktop/picture.h"

#include <QPainter>

namespace monitra::desktop {

void Picture::show(const QString& file, QSize size) {
  drawing_.load(file);
  setFixedSize(size);
}

void Picture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawing_.render(&painter, rect());
}

}  // namespace monitra::desktop
