#include "store/preferences.h"

#include "timing/numbers.h"

namespace monitra::store {

int Preferences::lptIndex() const {
  const int index = timing::wholeNumber(timing::Ertek(get("LPT", "0")));
  return index >= 0 && index <= 2 ? index : 0;
}

std::string Preferences::seb() const {
  return get("Seb", "100");
}

bool Preferences::inverted(int n) const {
  return get("Inv" + std::to_string(n), "0") != "0";
}

bool Preferences::boardV4x() const {
  return get("PCB", "40") == "40";
}

void Preferences::saveBoard(bool v4x) {
  set("PCB", v4x ? "40" : "32");
}

void Preferences::save(int lptIndex, const std::string& seb, const std::array<bool, 3>& inverted) {
  set("LPT", timing::numberText(lptIndex));
  set("Seb", seb);
  for (std::size_t n = 0; n < inverted.size(); ++n) {
    set("Inv" + std::to_string(n), inverted[n] ? "1" : "0");
  }
}

std::string Preferences::get(const std::string& key, const std::string& fallback) const {
  return store_.GetSetting(application_, "Setup", key, fallback);
}

void Preferences::set(const std::string& key, const std::string& value) {
  store_.SaveSetting(application_, "Setup", key, value);
}

}  // namespace monitra::store
