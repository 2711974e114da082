#include "widgets/svg_icon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

namespace monitra::widgets {

namespace {

class SvgIconEngine : public QIconEngine {
 public:
  explicit SvgIconEngine(QString file) : file_(std::move(file)) {}

  QIconEngine* clone() const override { return new SvgIconEngine(file_); }

  void paint(QPainter* painter, const QRect& where, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device()->devicePixelRatio();
    QPixmap image = pixmap(where.size() * scale, mode, state);
    image.setDevicePixelRatio(scale);
    painter->drawPixmap(where, image);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    QPixmap image(size);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(file_).render(&painter);
    painter.end();
    if (mode == QIcon::Normal) return image;
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, image, &option);
  }

 private:
  QString file_;
};

}  // namespace

QIcon svgIcon(const QString& file) {
  return QIcon(new SvgIconEngine(file));
}

}  // namespace monitra::widgets
