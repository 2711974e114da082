#pragma once

#include <QLabel>

namespace monitra::widgets {

/// A label in a thin box, whose edges show at every scale; those of the toolkit's style get lost
/// in part where a pixel isn't a whole number of the screen's.
class BoxedLabel : public QLabel {
 public:
  explicit BoxedLabel(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace monitra::widgets
