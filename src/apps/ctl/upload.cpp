#include <algorithm>
#include <iomanip>
#include <iostream>
#include <optional>

#include "apps/ctl/bench.h"
#include "apps/ctl/commands.h"
#include "apps/ctl/record_file.h"
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

std::string vcdOf(const shell::Lap& lap, const std::vector<ports::PortEvent>& events) {
  const link::PinMap& pins = link::pinMap(lap.pcb());
  const std::int32_t address = lap.selectedAddress();
  return ports::vcd({address, link::controlAddress(address), link::dataPinNames(pins),
                     link::controlPinNames(pins)},
                    events);
}

ExitCode refused(const std::string& why) {
  if (why.empty()) return done;
  std::cerr << why << '\n';
  return fileError;
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
  std::optional<RecordFile> record;
  if (!options.vcd.empty()) record.emplace(options.vcd, options.force);
  if (record && refused(record->prepare(options.file)) != done) return fileError;

  bool sent = false;
  lap.uploaded.handle([&sent] { sent = true; });
  lap.setup.Letolt.click();
  if (sent) {
    const auto first = bench.events().begin() + static_cast<std::ptrdiff_t>(bench.firstSent());
    printTiming({first, bench.events().end()});
    if (lap.Esemeny.kind() == controls::Status::Warning)
      std::cerr << lap.Esemeny.Caption.get() << '\n';
  } else {
    std::cout << "Nem ment ki semmi.\n";
  }
  const ExitCode ended = bench.closing();
  if (!record || !sent || ended != done) return ended;
  return refused(record->write(vcdOf(lap, bench.events())));
}

}  // namespace monitra::ctl
