#pragma once

#include "bench/load_test.h"
#include "bench/phase_panel.h"
#include "link/command_frames.h"

namespace monitra::bench {

/// Drives one winding line of each motor at a time. The selected buttons show what was last chosen
/// here, which a load test or its stop may have overtaken; the controller reports nothing back.
/// Binds its handlers to the phase panel; all arguments must outlive it.
class PhaseTest {
 public:
  PhaseTest(PhasePanel& panel, LoadTest& load, link::CommandFrames& frames);

  /// The option button Index, 0 to 20, has become selected.
  void L_Click(int Index);

  /// Selects the next line of the motor Index, 0 to 2.
  void Leptet_Click(int Index);

 private:
  PhasePanel& panel_;
  LoadTest& load_;
  link::CommandFrames& frames_;
};

}  // namespace monitra::bench
