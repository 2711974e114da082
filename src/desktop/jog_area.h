#pragma once

#include "bench/jog_panel.h"
#include "desktop/line_drawing.h"

namespace monitra::desktop {

/// The jog buttons in their two crosses beside a sketch of the machine's axes.
/// The panel must live as long as the widget.
class JogArea : public LineDrawing {
 public:
  JogArea(bench::JogPanel& panel, double scale, QWidget* parent = nullptr);
};

}  // namespace monitra::desktop
