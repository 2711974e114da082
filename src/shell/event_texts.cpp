#include "shell/event_texts.h"

#include <algorithm>
#include <chrono>
#include <ratio>

#include "store/pwm_format.h"
#include "timing/numbers.h"

namespace monitra::shell {

using platform::Failure;

std::string openingText(const store::OpenResult& result) {
  std::string text;
  if (result.failure == Failure::EndOfFile) {
    text = "A fájl hiányos: " + std::to_string(result.records.size()) + " sor van benne a " +
           std::to_string(store::pwmRecords) + " helyett. ";
  }
  if (result.adjusted > 0) text += adjustedText(result.adjusted) + " ";
  return text.empty() ? text : text + "Ellenőrizze a mezőket!";
}

std::string adjustedText(int values) {
  return std::to_string(values) + " értéke a tartományán kívül esett, a legközelebbi határt kapta.";
}

std::string savingText(Failure failure, const std::string& path) {
  return failure == Failure::None ? "Mentve: " + path : std::string{};
}

std::string firmwareText(const firmware::ReadResult& result, const firmware::ImageReport& report,
                         const std::string& name, const std::string& version) {
  std::string text;
  if (result.adjusted > 0) text = adjustedText(result.adjusted) + " ";
  if (!report.faults.empty()) {
    const auto decisive = std::ranges::find_if(report.faults, &firmware::ImageFault::decisive);
    text += faultText(decisive != report.faults.end() ? *decisive : report.faults.front(), name);
    if (report.faultCount > 1) {
      text += " (és még " + std::to_string(report.faultCount - 1) + " hiba)";
    }
  } else if (result.failure != Failure::None || report.failure != Failure::None) {
    text += unreadableText(report.failure != Failure::None ? report.failure : result.failure, name);
  } else {
    text += "Beolvasva a " + version + " firmware paraméterblokkja.";
  }
  return text;
}

controls::Status firmwareStatus(const firmware::ReadResult& result,
                                const firmware::ImageReport& report) {
  using controls::Status;
  const bool isWhole = report.faults.empty() && report.failure == Failure::None;
  if (!isWhole || result.failure != Failure::None) return Status::Fault;
  return result.adjusted > 0 ? Status::Warning : Status::Done;
}

std::string unreadableText(Failure failure, const std::string& name) {
  switch (failure) {
    case Failure::FileNotFound:
    case Failure::PathNotFound:
      return name + ": nincs ilyen fájl.";
    case Failure::PathFileAccess:
      return name + ": nem olvasható, mert mappa, vagy nincs hozzá jog.";
    default:
      return name + ": nem olvasható be, a hiba kódja" +
             timing::numberText(static_cast<int>(failure)) + ".";
  }
}

std::string faultText(const firmware::ImageFault& fault, const std::string& name) {
  const std::string place = fault.line > 0 ? ", " + std::to_string(fault.line) + ". sor" : "";
  return name + place + ": " + fault.reason;
}

std::string sentText(const link::LineTiming& timing) {
  const auto milliseconds = [](std::chrono::nanoseconds time) {
    const auto tenths = std::chrono::round<std::chrono::duration<long, std::deci>>(time * 1000);
    return std::to_string(tenths.count() / 10) + "." + std::to_string(tenths.count() % 10) + " ms";
  };
  return "Kiküldve " + milliseconds(timing.duration) + " alatt, két él közt legfeljebb " +
         milliseconds(timing.longestPause) + " szünettel. A vonal egyirányú, nyugta nem jön.";
}

std::string cutShortText() {
  return "A port feltöltés közben eltűnt, a Setup nem ment ki egészen. Töltse fel újra!";
}

std::string nothingSentText() {
  return "Nem ment ki semmi, mert nincs használható port. A port sora megmondja, miért.";
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
