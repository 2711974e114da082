#include "bench/pulse_generator.h"

#include "timing/numbers.h"

namespace monitra::bench {

using link::mask;

int timerInterval(double stepsPerSecond) {
  return timing::wholeNumber(1 / stepsPerSecond * 1000);
}

PulseGenerator::PulseGenerator(JogPanel& panel, link::PortPanel& portPanel,
                               link::PortSelection& port, platform::PortRegisters& registers)
    : panel_(panel), portPanel_(portPanel), port_(port), registers_(registers) {
  panel_.Impulzus.Value.handle([this] { Impulzus_Click(); });
  for (int i = panel_.Mozg.first; i < panel_.Mozg.end; ++i) {
    panel_.Mozg[i].MouseDown.handle([this, i] { Mozg_MouseDown(i); });
    panel_.Mozg[i].MouseUp.handle([this] { Mozg_MouseUp(); });
  }
  panel_.Seb.Text.handle([this] { Seb_Change(); });
  panel_.Timer1.Tick.handle([this] { Timer1_Timer(); });
}

void PulseGenerator::Impulzus_Click() {
  port_.PortCimFrissit();
  if (panel_.Impulzus.Value) {
    start();
  } else {
    stop();
  }
  switched.raise();
}

void PulseGenerator::start() {
  if (timing::Ertek(panel_.Seb.Text.get()) < 1) {
    correcting_ = true;
    panel_.Seb.Text = "1";
    correcting_ = false;
  }
  panel_.Timer1.Interval = timerInterval(timing::Ertek(panel_.Seb.Text.get()));
  panel_.Timer1.Enabled = true;
  portPanel_.enableBits(false);
  for (int i = panel_.Mozg.first; i < panel_.Mozg.end; ++i) panel_.Mozg[i].Enabled = true;
  panel_.SpindleGomb.Enabled = true;
}

void PulseGenerator::stop() {
  panel_.Timer1.Enabled = false;
  portPanel_.enableBits(true);
  for (int i = panel_.Mozg.first; i < panel_.Mozg.end; ++i) panel_.Mozg[i].Enabled = false;
  panel_.SpindleGomb.Enabled = false;
  panel_.SpindleGomb.Value = false;
}

void PulseGenerator::Mozg_MouseDown(int Index) {
  const bool inverted = panel_.Invert[Index / 2].Checked;
  MozgJel[inverted ? Index ^ 1 : Index] = -1;
}

void PulseGenerator::Mozg_MouseUp() {
  for (int i = MozgJel.first; i < MozgJel.end; ++i) MozgJel[i] = 0;
}

void PulseGenerator::Seb_Change() {
  if (correcting_) return;
  panel_.Impulzus.Value = false;
  panel_.Timer1.Enabled = false;
}

void PulseGenerator::SSTab1_GotFocus() {
  panel_.Timer1.Enabled = false;
  panel_.Impulzus.Value = false;
  portPanel_.enableBits(true);
}

void PulseGenerator::Timer1_Timer() {
  refreshSpindle();
  for (int i = MozgJel.first; i < MozgJel.end; ++i) {
    if (MozgJel[i] != 0) return pulse(i);
  }
}

void PulseGenerator::refreshSpindle() {
  const int bit = mask(port_.pins().SpindleBit);
  const int control = registers_.DlPortReadPortUchar(port_.VezerloPort);
  registers_.DlPortWritePortUchar(
      port_.VezerloPort,
      static_cast<std::uint8_t>(panel_.SpindleGomb.Value ? control & ~bit : control | bit));
}

void PulseGenerator::pulse(int flag) {
  const link::PinMap& pins = port_.pins();
  const std::uint8_t stepBits[] = {pins.XStepBit, pins.YStepBit, pins.ZStepBit};
  const std::uint8_t dirBits[] = {pins.XDirBit, pins.YDirBit, pins.ZDirBit};
  const int axis = flag / 2;
  const bool withDirection = flag % 2 == 0;
  const int direction = withDirection ? mask(dirBits[axis]) : 0;

  // The repeated writes are the setup time of the direction and the width of the pulse.
  if (withDirection) writeData(direction, 3);
  writeData(direction | mask(stepBits[axis]), 3);
  writeData(direction, 2);
}

void PulseGenerator::writeData(int value, int times) {
  for (int n = 0; n < times; ++n) {
    registers_.DlPortWritePortUchar(port_.AdatPort, static_cast<std::uint8_t>(value));
  }
}

}  // namespace monitra::bench
