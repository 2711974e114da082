#include <stdexcept>

#include "settings/json_settings.h"
#include "store/preferences.h"
#include "support/scratch.h"

/// Any bytes as the preferences' file: read, saved over with others, and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace monitra;
  static const support::Scratch scratch;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::filesystem::remove(scratch.path("a.json.bad"));
  scratch.write("a.json", bytes);
  settings::JsonSettings settings(scratch.path());
  store::Preferences preferences(settings, "a");
  const int port = preferences.lptIndex();
  const bool board = preferences.boardV4x(), damaged = settings.isDamaged("a");
  const std::string rate = preferences.seb() + "7";
  const std::array inverted{!preferences.inverted(0), !preferences.inverted(1), true};
  preferences.save(2 - port, rate, inverted);
  bool right = preferences.boardV4x() == board;
  preferences.saveBoard(!board);
  for (int n = 0; n < 3; ++n)
    right = right && preferences.inverted(n) == inverted.at(static_cast<std::size_t>(n));
  if (!right || port < 0 || port > 2 || preferences.lptIndex() != 2 - port ||
      preferences.seb() != rate || preferences.boardV4x() == board || settings.isDamaged("a") ||
      scratch.read("a.json.bad") != (damaged ? bytes : "")) {
    throw std::runtime_error("WRONG: the preferences that were saved over " + bytes);
  }
  return 0;
}
