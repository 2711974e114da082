#pragma once

#include <QWidget>

#include "compare/curve_view.h"

class QLabel;

namespace monitra::compare {

/// One axis: its curve and its speeds, in words for a screen reader too.
class AxisPanel : public QWidget {
 public:
  explicit AxisPanel(int axis, QWidget* parent = nullptr);

  /// As CurveView::show; the way of a step is in millimetres.
  void show(const CurveView::Picture& present, const CurveView::Picture& behind, double until,
            bool wholeSteps, double mmPerStep);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  /// Places its parts itself: a layout would do so for the whole window at each new text.
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize withWords(QSize curve) const;

  QString name_;
  QLabel* head_;
  QLabel* speeds_;
  CurveView* curve_;
};

}  // namespace monitra::compare
