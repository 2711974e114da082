#include "store/preferences.h"

#include "timing/numbers.h"

namespace monitra::store {

namespace {

constexpr const char* section = "Setup";

}  // namespace

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

Preferences::Standing Preferences::standing() const {
  if (store_.isDamaged(application_)) return Standing::Damaged;
  const bool unnamed = get("PCB", "").empty() && !get("Seb", "").empty();
  return unnamed ? Standing::NoBoard : Standing::Sound;
}

void Preferences::saveBoard(bool v4x) {
  store_.SaveSetting(application_, section, "PCB", v4x ? "40" : "32");
}

void Preferences::save(int lptIndex, const std::string& seb, const std::array<bool, 3>& inverted) {
  platform::SettingsStore::Entries entries{{"LPT", timing::numberText(lptIndex)}, {"Seb", seb}};
  for (std::size_t n = 0; n < inverted.size(); ++n) {
    entries.emplace_back("Inv" + std::to_string(n), inverted[n] ? "1" : "0");
  }
  store_.SaveSettings(application_, section, entries);
}

std::string Preferences::get(const std::string& key, const std::string& fallback) const {
  return store_.GetSetting(application_, section, key, fallback);
}

}  // namespace monitra::store
