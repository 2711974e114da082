#include "shell/event_texts.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ratio>

#include "store/failure_texts.h"
#include "store/pwm_format.h"
#include "timing/numbers.h"

namespace monitra::shell {

using platform::Failure;

std::string openingText(const store::OpenResult& result) {
  std::string text;
  switch (result.failure) {
    case Failure::None:
    case Failure::Cancel:
    case Failure::FileNotFound:
      break;
    case Failure::EndOfFile:
      text = "A fájl hiányos: " + std::to_string(result.records.size()) + " sor van benne a " +
             std::to_string(store::pwmRecords) + " helyett. ";
      break;
    default:
      text = "Nem olvasható be: " + store::failureMeaning(result.failure);
      if (result.records.empty()) return text;
      text += " ";
  }
  if (result.adjusted > 0) text += adjustedText(result.adjusted) + " ";
  return text.empty() ? text : text + "Ellenőrizze a mezőket!";
}

std::string adjustedText(int values) {
  return std::to_string(values) + " értéke a tartományán kívül esett, a legközelebbi határt kapta.";
}

std::string savingText(Failure failure, const std::string& path, const std::string& copy) {
  const std::string kept = copy.empty() ? std::string{} : " A fájl előző tartalma itt van: " + copy;
  if (failure == Failure::None) return "Mentve: " + path + kept;
  return failure == Failure::Cancel ? std::string{}
                                    : "Nincs elmentve: " + store::failureMeaning(failure) + kept;
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
    text += store::unreadableText(report.failure != Failure::None ? report.failure : result.failure,
                                  name);
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

std::string faultText(const firmware::ImageFault& fault, const std::string& name) {
  const std::string place = fault.line > 0 ? ", " + std::to_string(fault.line) + ". sor" : "";
  return name + place + ": " + fault.reason;
}

std::string uploadRefusedText() {
  return "Ehhez a Setuphoz (Vilor firmware) nincs feltöltés: nyisson meg egyet 3-as vagy újabb "
         "firmware-hez!";
}

std::string jogRefusedText() {
  return "A léptetéshez előbb nyomja be az „Impulzus engedély” gombot!";
}

std::string sentText(const link::LineTiming& timing, bool kept) {
  const auto milliseconds = [](std::chrono::nanoseconds time) {
    const auto tenths = std::chrono::round<std::chrono::duration<long, std::deci>>(time * 1000);
    return std::to_string(tenths.count() / 10) + "." + std::to_string(tenths.count() % 10) + " ms";
  };
  return "Kiküldve " + milliseconds(timing.duration) + " alatt, két él közt legfeljebb " +
         milliseconds(timing.longestPause) + " szünettel. " +
         (kept ? "A vonal egyirányú, nyugta nem jön."
               : "Az előzmények közé nem került be: nézze meg, van-e hely a lemezen!");
}

std::string cutShortText() {
  return "A port feltöltés közben eltűnt, a Setup nem ment ki egészen. Töltse fel újra!";
}

std::string nothingSentText() {
  return "Nem ment ki semmi, mert nincs használható port. A port sora megmondja, miért.";
}

std::string bitsSentText(std::int32_t data, std::int32_t control, std::uint16_t levels,
                         bool spindleRuns) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "Kiment: &H%X = %02Xh, &H%X = %02Xh; a marómotor %s",
                static_cast<unsigned>(data), levels & 0xFFU, static_cast<unsigned>(control),
                static_cast<unsigned>(levels) >> 8U, spindleRuns ? "be" : "ki");
  return text.data();
}

std::string halfSentText() {
  return "A port közben eltűnt, nem ment ki minden bit. Küldje ki újra!";
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

std::string preferencesText(store::Preferences::Standing standing) {
  using Standing = store::Preferences::Standing;
  switch (standing) {
    case Standing::Damaged:
      return "A tárolt beállítások sérültek, alapértékek vannak érvényben. Ellenőrizze a portot és "
             "a panelt!";
    case Standing::NoBoard:
      return "A tárolt beállítások nem nevezik meg a panelt, a V4.x van érvényben. Válassza ki a "
             "„Beállítás” menüben!";
    case Standing::Sound:
      break;
  }
  return {};
}

}  // namespace monitra::shell
