#pragma once

#include "desktop/line_drawing.h"

namespace monitra::desktop {

/// The jog buttons in their two crosses beside a sketch of the machine's axes.
class JogArea : public LineDrawing {
 public:
  JogArea(const WidgetMaker& widgets, double scale);
};

}  // namespace monitra::desktop
