#include "shell/event_texts.h"

#include "store/pwm_format.h"
#include "timing/numbers.h"

namespace monitra::shell {

using platform::Failure;

std::string openingText(const store::OpenResult& result) {
  std::string text;
  if (result.failure == Failure::EndOfFile) {
    text = "A fájl hiányos: " + std::to_string(result.records) + " sor van benne a " +
           std::to_string(store::pwmRecords) + " helyett. ";
  }
  if (result.adjusted > 0) {
    text += std::to_string(result.adjusted) +
            " értéke a tartományán kívül esett, a legközelebbi határt kapta. ";
  }
  if (!text.empty()) text += "Ellenőrizze a mezőket!";
  return text;
}

std::string savingText(Failure failure, const std::string& path) {
  return failure == Failure::None ? "Mentve: " + path : std::string{};
}

std::string generatorText(int interval) {
  if (interval == 0) return "Ekkora sebességnél nem jön impulzus: adjon meg 2000-nél kisebbet!";
  constexpr int characters = 5;
  return "Az impulzusgenerátor üteme " + std::to_string(interval) + " ms, azaz " +
         timing::Levag(1000.0 / interval, characters) + " lépés/másodperc.";
}

std::string missingPermitText(bool firstGiven) {
  return firstGiven ? "150% fölé a második engedély is kell: jelölje be, ha a táp bírja!"
                    : "100% fölé engedély kell: jelölje be az elsőt, ha a táp bírja!";
}

std::string damagedPreferencesText() {
  return "A tárolt beállítások sérültek, alapértékek vannak érvényben. Ellenőrizze a portot és a "
         "panelt!";
}

}  // namespace monitra::shell
