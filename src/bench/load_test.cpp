#include "bench/load_test.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "timing/numbers.h"

namespace monitra::bench {

namespace colour = controls::colour;

namespace {

/// Steps up to which a permit is not needed, and up to which the first one is enough.
constexpr int fullLoad = 6;
constexpr int firstPermit = 9;
constexpr int warningAbove = 7;

controls::Colour loadColour(int step) {
  if (step <= fullLoad) return colour::green;
  return step <= firstPermit ? colour::yellow : colour::red;
}

}  // namespace

std::string loadText(int step) {
  constexpr int characters = 6;
  return timing::numberText(step / 6.0 * 100).substr(0, characters) + "%";
}

int loadLevel(int step) {
  return timing::wholeNumber(step * 8.334);
}

LoadTest::LoadTest(LoadPanel& panel, PhasePanel& phases, link::CommandFrames& frames,
                   std::function<void()> Beep)
    : panel_(panel), phases_(phases), frames_(frames), Beep_(std::move(Beep)) {
  panel_.TapFel.Click.handle([this] { TapFel_Click(); });
  panel_.TapStop.Click.handle([this] { TapStop_Click(); });
}

void LoadTest::TapFel_Click() {
  begun.raise();
  panel_.TapFel.Enabled = false;
  panel_.LEDsav.Limit2 = 75;
  panel_.LEDsav.Limit1 = 50;
  endPhaseTest();
  if (permitted()) {
    loadOneMore();
  } else {
    Beep_();
    refused.raise();
  }
  panel_.TapFel.Enabled = true;
}

void LoadTest::endPhaseTest() {
  for (int motor = 0; motor < 3; ++motor) {
    controls::OptionButton& off = phases_.L[phaseIndex(motor, RowOff)];
    if (off.Value) continue;
    off.Value = true;
    TapLepes = 0;
  }
}

bool LoadTest::permitted() const {
  if (TapLepes >= fullLoad && !panel_.TulH.Checked) return false;
  return TapLepes < firstPermit || panel_.Teh200.Checked;
}

void LoadTest::loadOneMore() {
  TapLepes = static_cast<std::uint8_t>(std::min(TapLepes + 1, loadSteps));
  panel_.LEDsav.Level = loadLevel(TapLepes);
  warn(TapLepes > warningAbove);
  // The first line of each motor comes on, then the second of each ...
  const std::size_t line = TapLepes - 1U;
  frames_.KeretKuld(link::motors[line % 3], link::phaseLines[line / 3]);
  panel_.Taptext.ForeColor = loadColour(TapLepes);
  panel_.Taptext.Text = loadText(TapLepes);
}

void LoadTest::TapStop_Click() {
  begun.raise();
  panel_.TapFel.Enabled = false;
  panel_.LEDsav.Level = 0;
  TapLepes = 0;
  frames_.allMotorsOff();
  panel_.Taptext.ForeColor = colour::green;
  panel_.Taptext.Text = "0%";
  panel_.TulH.Checked = false;
  panel_.Teh200.Checked = false;
  warn(false);
  panel_.TapFel.Enabled = true;
}

void LoadTest::warn(bool on) {
  panel_.Figy.Enabled = on;
  panel_.Figy2.Enabled = on;
  panel_.Figy2.BackColor = on ? colour::red : colour::buttonFace;
}

}  // namespace monitra::bench
