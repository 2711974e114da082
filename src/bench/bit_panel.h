#pragma once

#include "controls/controls.h"

namespace monitra::bench {

/// The buttons of the direct bit output; its boxes belong to the port.
struct BitPanel {
  controls::PushButton Kuld;
  controls::PushButton Torles;
};

}  // namespace monitra::bench
