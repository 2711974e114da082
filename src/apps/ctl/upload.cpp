#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <system_error>

#include "apps/ctl/bench.h"
#include "apps/ctl/commands.h"
#include "link/pin_names.h"
#include "ports/vcd.h"

namespace monitra::ctl {

namespace {

void printTiming(const std::vector<ports::PortEvent>& events) {
  std::vector<std::chrono::nanoseconds> writes;
  for (const auto& event : events) {
    if (event.kind == ports::PortEvent::Kind::Write) writes.push_back(event.end);
  }
  if (writes.size() < 2) return;
  auto shortest = std::chrono::nanoseconds::max();
  auto longest = std::chrono::nanoseconds::zero();
  for (std::size_t i = 1; i < writes.size(); ++i) {
    shortest = std::min(shortest, writes[i] - writes[i - 1]);
    longest = std::max(longest, writes[i] - writes[i - 1]);
  }
  using Milliseconds = std::chrono::duration<double, std::milli>;
  std::cout << std::fixed << std::setprecision(3) << writes.size() << " írás, "
            << Milliseconds(events.back().end - writes.front()).count()
            << " ms; két írás között legalább " << Milliseconds(shortest).count()
            << " ms, legfeljebb " << Milliseconds(longest).count() << " ms telt el.\n";
}

/// Opens the file for the record; tells why that can't be.
bool openVcd(std::ofstream& file, const UploadOptions& options) {
  if (options.vcd.empty()) return true;
  std::error_code error;
  if (std::filesystem::equivalent(options.vcd, options.file, error)) {
    std::cerr << "A --vcd fájlja maga a Setup fájl. Adjon meg másikat!\n";
    return false;
  }
  file.open(options.vcd, std::ios::trunc);
  if (!file) std::cerr << "A(z) '" << options.vcd << "' fájl nem írható. Adjon meg más helyet!\n";
  return file.good();
}

/// Writes the record where it was asked for; tells if it is not complete.
bool writeVcd(std::ofstream& file, const UploadOptions& options, const shell::Lap& lap,
              const std::vector<ports::PortEvent>& events) {
  if (options.vcd.empty()) return true;
  const link::PinMap& pins = link::pinMap(lap.pcb());
  const std::int32_t address = link::portAddress(lap.port.LPT.text());
  file << ports::vcd({address, link::controlAddress(address), link::dataPinNames(pins),
                      link::controlPinNames(pins)},
                     events);
  file.close();
  if (!file) std::cerr << "A(z) '" << options.vcd << "' fájl írása félbemaradt.\n";
  return file.good();
}

}  // namespace

ExitCode upload(const UploadOptions& options) {
  Bench bench(options.port);
  if (const ExitCode opened = bench.openSetup(options.file); opened != done) return opened;
  shell::Lap& lap = bench.lap();
  if (!lap.setup.Letolt.Enabled) {
    std::cerr << "Ez a Setup az első kiadásé (Vilor), PC-Linken nem tölthető fel.\n";
    return fileError;
  }
  if (const ExitCode usable = bench.tellPort(); usable != done) return usable;
  std::ofstream vcdFile;
  if (!openVcd(vcdFile, options)) return fileError;

  bool sent = false;
  lap.uploaded.handle([&sent] { sent = true; });
  lap.setup.Letolt.click();
  if (sent) {
    const auto first = bench.events().begin() + static_cast<std::ptrdiff_t>(bench.firstSent());
    printTiming({first, bench.events().end()});
  } else {
    std::cout << "Nem ment ki semmi.\n";
  }
  if (!writeVcd(vcdFile, options, lap, bench.events())) return fileError;
  return bench.closing();
}

}  // namespace monitra::ctl
