#pragma once

#include <QRect>
#include <QWidget>
#include <span>
#include <vector>

#include "controls/controls.h"
#include "desktop/widget_maker.h"
#include "shell/drawings.h"

namespace monitra::desktop {

/// A drawing of straight lines with labels at them, of a fixed size that holds both.
class LineDrawing : public QWidget {
 public:
  struct Content {
    QRect area;  ///< of the tab's space, in twips
    std::span<const shell::DrawnLine> lines;
    std::span<const shell::DrawnLabel> labels;
  };

  /// The scale is in pixels per twip. A line that has a control shows while that is visible.
  LineDrawing(const WidgetMaker& widgets, const Content& content, double scale);

 protected:
  void paintEvent(QPaintEvent* event) override;

  /// Where a point of the tab's space, in twips, lies on this widget.
  QPoint place(int x, int y) const;

 private:
  struct Line {
    shell::DrawnLine drawn;
    const controls::Line* control;  ///< null: it always shows
  };

  QPoint origin_;
  double scale_;
  std::vector<Line> lines_;
};

}  // namespace monitra::desktop
