#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "bench/load_panel.h"
#include "bench/phase_panel.h"
#include "link/command_frames.h"

namespace monitra::bench {

inline constexpr int loadSteps = 12;

/// The load of a step, 1 to 12, as the display shows it: cut and not rounded, a blank ahead.
std::string loadText(int step);

/// Level of the bar for a step, 1 to 12.
int loadLevel(int step);

/// Loads the power supply by one more motor line at each press, from 0 to 200% in twelve steps;
/// above 100% and above 150% only with the user's permit.
/// Binds its handlers to the load panel; all arguments must outlive it.
class LoadTest {
 public:
  LoadTest(LoadPanel& panel, PhasePanel& phases, link::CommandFrames& frames,
           std::function<void()> Beep);

  void TapFel_Click();
  void TapStop_Click();

  std::uint8_t TapLepes = 0;  ///< the load step, 0 to 12

  controls::Event begun;    ///< TapFel or TapStop has been pressed, and nothing is sent yet
  controls::Event refused;  ///< a permit is missing, and the load stays

 private:
  void endPhaseTest();
  bool permitted() const;
  void loadOneMore();
  void warn(bool on);

  LoadPanel& panel_;
  PhasePanel& phases_;
  link::CommandFrames& frames_;
  std::function<void()> Beep_;
};

}  // namespace monitra::bench
