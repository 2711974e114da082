#include <stdexcept>

#include "settings/json_settings.h"
#include "store/preferences.h"
#include "support/scratch.h"

/// Any bytes as the preferences' file: read, saved over with others, and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace monitra;
  const support::Scratch scratch;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  scratch.write("a.json", bytes);
  settings::JsonSettings settings(scratch.path());
  store::Preferences preferences(settings, "a");
  const bool board = preferences.boardV4x(), damaged = settings.isDamaged("a");
  const int port = preferences.lptIndex();
  const std::string rate = preferences.seb() + "7";
  preferences.save(2 - port, rate, {!preferences.inverted(0), preferences.inverted(1), true});
  const bool kept = preferences.boardV4x() == board;
  preferences.saveBoard(!board);
  if (!kept || port < 0 || port > 2 || preferences.lptIndex() != 2 - port ||
      preferences.seb() != rate || !preferences.inverted(2) || preferences.boardV4x() == board ||
      settings.isDamaged("a") || scratch.read("a.json.bad") != (damaged ? bytes : "")) {
    throw std::runtime_error("WRONG: what was saved over " + bytes);
  }
  return 0;
}
