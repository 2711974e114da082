#pragma once

#include "controls/controls.h"

namespace monitra::bench {

/// The controls of the load test, with the values of the window description.
struct LoadPanel {
  LoadPanel() { Taptext.ForeColor = controls::colour::green; }

  controls::PushButton TapFel;
  controls::PushButton TapStop;
  controls::TextBox Taptext{"0%", true};
  controls::LedMeter LEDsav;
  controls::CheckBox TulH;
  controls::CheckBox Teh200;
  controls::Frame Figy{false};
  controls::Label Figy2{false};
};

}  // namespace monitra::bench
