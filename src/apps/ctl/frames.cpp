#include <algorithm>
#include <string>

#include "apps/ctl/bench.h"
#include "apps/ctl/commands.h"
#include "link/command_frames.h"

namespace monitra::ctl {

namespace {

/// A frame as its three bytes.
std::string bytesOf(std::uint8_t motor, std::uint8_t value) {
  return std::to_string(motor) + " 0 " + std::to_string(value);
}

/// Where a word stands among those that the parser lets through.
template <std::size_t count>
std::size_t positionOf(const std::string& word, const std::array<const char*, count>& words) {
  return static_cast<std::size_t>(std::ranges::find(words, word) - words.begin());
}

}  // namespace

ExitCode off(const PortOptions& options) {
  Bench bench(options);
  std::string question = "Kikapcsoló keretek a motoroknak:";
  for (const std::uint8_t motor : link::motors) {
    question += (motor == link::motors.front() ? " " : ", ") + bytesOf(motor, link::FazisKi);
  }
  return bench.askAndDo(question + ".\nA vezérlő PC-Link üzemmódban van, mehet?",
                        [&bench] { bench.lap().frames().allMotorsOff(); });
}

ExitCode frame(const FrameOptions& options) {
  const std::uint8_t motor = link::motors[positionOf(options.motor, motorWords)];
  const std::size_t line = positionOf(options.line, lineWords);
  const std::uint8_t value =
      line < link::phaseLines.size() ? link::phaseLines[line] : link::FazisKi;
  Bench bench(options.port);
  return bench.askAndDo("Keret a motornak (" + options.motor + ", " + options.line + "): " +
                            bytesOf(motor, value) + ".\nA vezérlő PC-Link üzemmódban van, mehet?",
                        [&] { bench.lap().frames().KeretKuld(motor, value); });
}

}  // namespace monitra::ctl
