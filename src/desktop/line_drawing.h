#pragma once

#include <QRect>
#include <QWidget>
#include <functional>
#include <span>
#include <string_view>

#include "controls/controls.h"
#include "shell/window_description.h"

namespace monitra::desktop {

/// A drawing of straight lines with labels at them, of a fixed size.
class LineDrawing : public QWidget {
 public:
  /// Finds the control behind a line of the drawing, or null for a line that always shows.
  using LineControl = std::function<controls::Line*(std::string_view name)>;

  struct Content {
    QRect area;  ///< of the tab's space, in twips
    std::span<const shell::DrawnLine> lines;
    std::span<const shell::DrawnLabel> labels;
  };

  /// The scale is in pixels per twip. The controls must live as long as the widget.
  LineDrawing(const Content& content, double scale, const LineControl& controlOf,
              QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

  /// Where a point of the tab's space, in twips, lies on this widget.
  QPoint place(int x, int y) const;

 private:
  Content content_;
  double scale_;
  LineControl controlOf_;
};

}  // namespace monitra::desktop
