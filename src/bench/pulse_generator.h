#pragma once

#include <cstdint>

#include "bench/jog_panel.h"
#include "controls/indexed_array.h"
#include "link/port_panel.h"
#include "link/port_selection.h"
#include "platform/port_registers.h"

namespace monitra::bench {

/// Timer interval in whole milliseconds, a tie going to the even one, for a rate of 1 or more
/// steps per second; 0, no ticks, from 2000 on.
int timerInterval(double stepsPerSecond);

/// Step pulses straight from the PC, one for each tick while a jog button is held, and the spindle
/// relay in step with its toggle. Stopping writes nothing to the port.
/// Binds its handlers to the jog panel; all arguments must outlive it.
class PulseGenerator {
 public:
  PulseGenerator(JogPanel& panel, link::PortPanel& portPanel, link::PortSelection& port,
                 platform::PortRegisters& registers);

  void Impulzus_Click();
  void Mozg_MouseDown(int Index);
  void Mozg_MouseUp();
  void Seb_Change();
  void Timer1_Timer();

  /// What the focus of the row of tabs does to the generator.
  void SSTab1_GotFocus();

  /// The jog requests of the moment, 0 or -1: an even index moves with the direction pin high, an
  /// odd one with it low, and the lowest one that is set goes first.
  controls::IndexedArray<std::int16_t, 0, 6> MozgJel;

  controls::Event switched;  ///< the generator has been switched on or off

 private:
  void start();
  void stop();
  void refreshSpindle();
  void pulse(int flag);
  void writeData(int value, int times);

  JogPanel& panel_;
  link::PortPanel& portPanel_;
  link::PortSelection& port_;
  platform::PortRegisters& registers_;
  bool correcting_ = false;  ///< the start itself sets the rate
};

}  // namespace monitra::bench
