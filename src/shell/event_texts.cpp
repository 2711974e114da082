#include "shell/event_texts.h"

#include "store/pwm_format.h"

namespace monitra::shell {

using platform::Failure;

std::string openingText(const store::OpenResult& result) {
  if (result.failure == Failure::EndOfFile) {
    return "A fájl hiányos: " + std::to_string(result.records) + " sor van benne a " +
           std::to_string(store::pwmRecords) + " helyett. A többi mező nem változott.";
  }
  if (result.failure == Failure::None && result.adjusted > 0) {
    return "A fájlban " + std::to_string(result.adjusted) +
           " érték a tartományán kívül volt, a határértékre állt. Ellenőrizze!";
  }
  return {};
}

std::string savingText(Failure failure, const std::string& path) {
  return failure == Failure::None ? "Mentve: " + path : std::string{};
}

}  // namespace monitra::shell
