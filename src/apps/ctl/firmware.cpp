#include <filesystem>
#include <iostream>
#include <system_error>
#include <utility>

#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "apps/ctl/state.h"
#include "apps/ctl/terminal.h"
#include "firmware/image_check.h"
#include "host/host_files.h"
#include "shell/event_texts.h"
#include "store/failure_texts.h"
#include "timing/numbers.h"

namespace monitra::ctl {

using platform::Failure;

namespace {

void tellUnreadable(Failure failure, const std::string& file) {
  if (failure != Failure::None) std::cerr << store::unreadableText(failure, file) << '\n';
}

/// What is wrong with an image, or why it can't be read.
void tellFaults(const firmware::ImageReport& image, const std::string& file) {
  for (const firmware::ImageFault& fault : image.faults) {
    std::cerr << shell::faultText(fault, file) << '\n';
  }
  const long more = image.faultCount - static_cast<long>(image.faults.size());
  if (more > 0) std::cerr << "... és még " << more << " hiba.\n";
  tellUnreadable(image.failure, file);
}

void tellReading(const shell::OpenedFirmware& opened, const std::string& file) {
  if (opened.read.adjusted > 0) {
    std::cerr << file << ": " << shell::adjustedText(opened.read.adjusted) << '\n';
  }
  tellFaults(opened.image, file);
}

/// The same numbers mean other times where the editions differ.
void tellOtherBase(double ofSetup, double ofFirmware) {
  if (ofSetup == ofFirmware) return;
  constexpr double microseconds = 1e6;
  std::cerr << "Figyelem: a Setup alapideje " << timing::decimalText(ofSetup * microseconds)
            << " us, a firmware-é " << timing::decimalText(ofFirmware * microseconds)
            << " us: ugyanazok a számok más időket jelentenek.\n";
}

/// What a failed patching may have left. It began with no file there. Where nothing can be found
/// out there may be one.
void tellUnfinished(Failure failure, const std::string& target) {
  using std::filesystem::file_type;
  std::error_code error;
  const file_type type = std::filesystem::status(target, error).type();
  if (failure == Failure::FileExists) return;
  if (type != file_type::regular && type != file_type::none) return;
  std::cerr << "A(z) '" << target << "' félbemaradt: törölje, és ne töltse a vezérlőbe!\n";
}

void printChange(std::string_view name, int before, int after) {
  if (before != after) std::cout << "  " << name << ": " << before << " -> " << after << '\n';
}

void printChanges(const timing::Setup& before, const timing::Setup& after) {
  for (std::size_t i = 0; i < timing::timingFields; ++i) {
    printChange(timing::timingFieldNames[i], before.timing[i], after.timing[i]);
  }
  printChange("Funkcio", before.Funkcio, after.Funkcio);
  printChange("Ut", before.Ut, after.Ut);
  printChange("Tures", before.Tures, after.Tures);
}

/// Why this image can't get this Setup; none if it can.
const char* refusal(const firmware::ImageReport& image, const timing::Setup& applied,
                    const timing::Setup& wanted) {
  if (!image.blockIsSound) return "A paraméterblokk nem ép, vagy nem a helyén van.";
  return applied == wanted ? nullptr
                           : "A Setupnak nem minden értéke érvényes ebben a firmware-ben.";
}

}  // namespace

ExitCode firmwareShow(const ShowOptions& options) {
  PortlessSession here([](const std::string&, int) { return platform::BoxAnswer::Ok; });
  const shell::OpenedFirmware opened = here.session.openFirmware(options.file);
  printState(here.session, options.json,
             {{"Vegallas", here.session.lap.setup.Vegallas.Caption},
              {"FirmwareNev", here.session.lap.kozos.FirmwareNev}});
  tellReading(opened, options.file);
  return opened.read.failure == Failure::None ? done : fileError;
}

ExitCode firmwarePatch(const PatchOptions& options) {
  PortlessSession here([](const std::string& text, int) {
    std::cerr << boxLines(text) << '\n';
    return platform::BoxAnswer::Ok;
  });
  shell::Lap& lap = here.session.lap;
  if (const ExitCode code = here.session.openSetup(options.setup); code != done) return code;
  const timing::Setup wanted = lap.setup.spinValues();
  const double setupBase = lap.kozos.Alapido;

  const shell::OpenedFirmware opened = here.session.openFirmware(options.firmware);
  tellReading(opened, options.firmware);
  if (opened.read.failure != Failure::None) return fileError;
  const timing::Setup before = lap.setup.spinValues();
  lap.setup.setSpinValues(wanted);
  if (const char* const reason = refusal(opened.image, lap.setup.spinValues(), wanted)) {
    std::cerr << reason << " A másolat nem készült el.\n";
    return fileError;
  }
  if (const Failure failure = here.session.saveFirmware(options.target); failure != Failure::None) {
    tellUnfinished(failure, options.target);
    return fileError;
  }
  std::cout << "Elkészült: " << options.target << " (" << printable(lap.setup.Verz.Caption)
            << ")\n";
  printChanges(before, wanted);
  tellOtherBase(setupBase, lap.kozos.Alapido);
  if (wanted.Xegesz || wanted.Yegesz || wanted.Zegesz) {
    std::cerr << "Az egész léptetés pipái nem kerülnek a firmware-be.\n";
  }
  if (opened.image.faultCount > 0) {
    std::cerr << "A forrás hibás, a másolat is az lehet: ellenőrizze a firmware verify "
                 "paranccsal, mielőtt a vezérlőbe tölti!\n";
  }
  return done;
}

ExitCode firmwareVerify(const std::string& file) {
  host::HostFiles files;
  // Each write to standard error is a call to the system, so many lines go out as one.
  constexpr std::size_t block = 65536;
  std::string told;
  const auto tell = [&told](std::size_t upTo) {
    if (told.size() > upTo) std::cerr << std::exchange(told, {});
  };
  const firmware::ImageReport image =
      firmware::checkImage(files, file, [&](const firmware::ImageFault& fault) {
        told += shell::faultText(fault, file) + '\n';
        tell(block);
      });
  tell(0);
  tellUnreadable(image.failure, file);
  if (image.failure != Failure::None) return fileError;
  std::cout << file << ": " << image.records << " rekord, "
            << (image.faultCount == 0 ? "hibátlan" : std::to_string(image.faultCount) + " hiba");
  if (image.blockLine > 0) std::cout << "; paraméterblokk: " << image.blockLine << ". sortól";
  std::cout << ".\n";
  return image.faultCount == 0 ? done : fileError;
}

}  // namespace monitra::ctl
