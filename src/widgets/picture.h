#pragma once

#include <QString>
#include <QSvgRenderer>
#include <QWidget>

namespace monitra::widgets {

/// A drawing from the program's resources, as sharp as the screen allows at every scale.
class Picture : public QWidget {
 public:
  void show(const QString& file, QSize size);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString file_;  ///< read once it is to be seen
  QSvgRenderer drawing_;
};

}  // namespace monitra::widgets
