#include "link/upload.h"

#include <cstddef>

namespace monitra::link {

SetupMessage setupMessage(const timing::Setup& setup) {
  using namespace timing;
  const auto field = [&setup](TimingField i) { return setup.timing[static_cast<std::size_t>(i)]; };
  const int wholeSteps = (setup.Xegesz ? 1 : 0) + (setup.Yegesz ? 2 : 0) + (setup.Zegesz ? 4 : 0);
  return {SetupIndit,
          0,
          field(T1X),
          field(TFX),
          field(T2X),
          field(T3X),
          field(T1Y),
          field(TFY),
          field(T2Y),
          field(T3Y),
          field(T1Z),
          field(TFZ),
          field(T2Z),
          field(T3Z),
          setup.Funkcio,
          static_cast<std::uint8_t>(setup.Ut / 256),
          static_cast<std::uint8_t>(setup.Ut % 256),
          setup.Tures,
          static_cast<std::uint8_t>(wholeSteps),
          SetupZaro};
}

Upload::Upload(timing::SetupPanel& panel, SerialLine& line, platform::MessageBox& box)
    : panel_(panel), line_(line), box_(box) {
  panel_.Letolt.Click.handle([this] { Letolt_Click(); });
}

void Upload::Letolt_Click() {
  using namespace platform;
  begun.raise();
  panel_.Letolt.Enabled = false;
  panel_.Bar.Value = 0;
  const BoxAnswer ready = box_.MsgBox(
      "Setup adatatok feltöltése a vezérlőbe!\r\n"
      "Indítsa a CNC-t PC-Setup módba és várja meg a Vezérlő jelzését!\r\n"
      "Kész a vezérlő az adatok fogadására?",
      box_style::exclamation | box_style::yesNo);
  if (ready == BoxAnswer::Yes) {
    sending.raise();
    send(setupMessage(panel_.spinValues()));
    sent.raise();
    box_.MsgBox(
        "A feltöltés kész!\r\n"
        "Ha nem indult újra a Vezérlő, ismételje meg újra az adatok feltöltését.",
        box_style::information | box_style::okOnly);
    panel_.Bar.Value = 0;
  }
  panel_.Letolt.Enabled = true;
}

void Upload::send(const SetupMessage& message) {
  /// What the bar shows after the byte at each position; 0: it stays.
  constexpr std::array<double, 20> barAfter{0, 0,  10, 0,  25, 0,  35, 0, 50, 0,
                                            0, 62, 0,  75, 0,  85, 0,  0, 0,  100};
  const SerialLine::Message whole(line_);
  line_.startTiming();
  for (std::size_t position = 0; position < message.size(); ++position) {
    line_.SorosBajt(message[position]);
    if (barAfter[position] != 0) panel_.Bar.Value = barAfter[position];
  }
  timing_ = line_.timing();
}

}  // namespace monitra::link
