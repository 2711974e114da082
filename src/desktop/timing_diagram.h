#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

#include "controls/controls.h"

namespace monitra::desktop {

/// The drawing of one period of the motor current, with the column heads of the grid below its
/// segments. It scales with the width of the grid's columns.
class TimingDiagram : public QWidget {
 public:
  /// Finds the control behind a line of the drawing, or null for a line that always shows.
  using LineControl = std::function<controls::Line*(std::string_view name)>;

  /// The scale is in pixels per twip. The controls must live as long as the widget.
  TimingDiagram(const LineControl& controlOf, double scale, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double scale_;
  LineControl controlOf_;
};

}  // namespace monitra::desktop
