#pragma once

#include <QWidget>
#include <optional>

#include "revisions/axis_picture.h"

namespace monitra::compare {

/// Draws the motor current of one axis over time, with milliseconds on its axis: the present curve
/// and, in grey behind it, another one. Below it the rates: up to where the current limiting works,
/// and from where steps get lost.
class CurveView : public QWidget {
  Q_OBJECT

 public:
  using Picture = std::optional<revisions::AxisPicture>;

  explicit CurveView(QWidget* parent = nullptr);

  /// The time in seconds at the right edge is the same in all views that are compared.
  void show(const Picture& present, const Picture& behind, double until);

  /// A time in seconds at which such a view may well end, so that it keeps its scale over a few
  /// presses.
  static double roundUp(double time);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF curveArea() const;
  QRectF rateArea() const;
  void drawTimes(QPainter& painter) const;
  void drawCurve(QPainter& painter, const revisions::AxisPicture& picture) const;
  void drawMarks(QPainter& painter) const;
  void drawRates(QPainter& painter) const;
  double x(double time) const;

  Picture present_;
  Picture behind_;
  double until_ = 0;
};

}  // namespace monitra::compare
