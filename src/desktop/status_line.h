#pragma once

#include <QLabel>

namespace monitra::desktop {

/// A line of text that never asks for more width than it gets: what doesn't fit is cut with an
/// ellipsis, and the tooltip shows the whole.
class StatusLine : public QLabel {
 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace monitra::desktop
