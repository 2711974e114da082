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
  controls::CheckBox TulH{"Túlterhelés engedély 150%-ig!"};
  controls::CheckBox Teh200{"Túlterhelés engedély 200%-ig!"};
  controls::Frame Figy{false};
  controls::Label Figy2{"Tápegység és huzalozás károsodási veszély! Fokozott figyelmet igényel!",
                        false};
};

}  // namespace monitra::bench
