#include "link/command_frames.h"

namespace monitra::link {

void CommandFrames::KeretKuld(std::uint8_t motor, std::uint8_t value) {
  const SerialLine::Message whole(line_);
  line_.SorosBajt(motor);
  line_.SorosBajt(0);
  line_.SorosBajt(value);
}

void CommandFrames::allMotorsOff() {
  for (const std::uint8_t motor : motors) KeretKuld(motor, FazisKi);
}

}  // namespace monitra::link
