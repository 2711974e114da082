#include "widgets/picture.h"

#include <QPainter>

namespace monitra::widgets {

void Picture::show(const QString& file, QSize size) {
  file_ = file;
  setFixedSize(size);
}

void Picture::paintEvent(QPaintEvent* /*event*/) {
  if (!drawing_.isValid()) drawing_.load(file_);
  QPainter painter(this);
  drawing_.render(&painter, rect());
}

}  // namespace monitra::widgets
