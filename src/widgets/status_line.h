#pragma once

#include <QLabel>

#include "controls/controls.h"

namespace monitra::widgets {

/// A line of text that never asks for more width than it gets: what doesn't fit is cut with an
/// ellipsis, and the tooltip shows the whole. Its kind shows by a colour and by a sign ahead of it.
class StatusLine : public QLabel {
 public:
  using QLabel::QLabel;

  void setKind(controls::Status kind);

  /// Of the text and its sign, in the present theme.
  QColor ink() const;
  /// What the sign takes from the width, with the gap behind it; 0 for plain information.
  int signWidth() const;

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  controls::Status kind_ = controls::Status::Plain;
};

}  // namespace monitra::widgets
