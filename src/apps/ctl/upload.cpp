#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <optional>

#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "host/pacer.h"
#include "link/pin_names.h"
#include "ports/recorder.h"
#include "ports/simulated_port.h"
#include "ports/vcd.h"

namespace monitra::ctl {

namespace {

using platform::BoxAnswer;
namespace box_style = platform::box_style;

/// Prints the box, a bad message to standard error, and takes the answer to a question from
/// standard input; its end counts as No.
BoxAnswer ask(const std::string& text, int style, bool yes) {
  if (!box_style::asksYesNo(style)) {
    (box_style::icon(style) == box_style::information ? std::cout << '\n' : std::cerr)
        << boxLines(text) << '\n';
    return BoxAnswer::Ok;
  }
  std::cout << '\n' << boxLines(text);
  std::cout << " [I/n] " << std::flush;
  if (yes) {
    std::cout << "igen (--yes)\n";
    return BoxAnswer::Yes;
  }
  std::string answer;
  if (!std::getline(std::cin, answer)) {
    std::cout << "nincs válasz\n";
    return BoxAnswer::No;
  }
  constexpr std::string_view yesLetters = "iIyY";
  return answer.empty() || yesLetters.find(answer.front()) != std::string_view::npos
             ? BoxAnswer::Yes
             : BoxAnswer::No;
}

std::string lptIndex(const std::string& digits) {
  if (digits.empty()) return {};
  return digits == "378" ? "0" : digits == "278" ? "1" : "2";
}

void printPort(const shell::Lap& lap) {
  const link::PinMap& pins = link::pinMap(lap.pcb());
  const auto names = link::dataPinNames(pins);
  std::cout << "Szimulált port: " << lap.port.LPT.text() << ", " << lap.port.PCBV.Caption.get()
            << " (adat: " << names[pins.SorosAdatBit] << ", órajel: " << names[pins.SorosOrajelBit]
            << ")\n";
}

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

void printReceived(const ports::Wiring& wiring, const ports::Received& message) {
  std::cout << "\nA virtuális vezérlő (" << wiring.board << ") " << message.bytes.size()
            << " bájtot kapott:\n";
  for (std::size_t position = 0; position < message.bytes.size(); ++position) {
    std::cout << std::setw(4) << position << ": " << std::setw(3)
              << static_cast<int>(message.bytes[position]) << '\n';
  }
  for (const std::string& line : ports::describe(message)) std::cout << line << '\n';
}

bool writeVcd(std::ofstream& file, const shell::Lap& lap,
              const std::vector<ports::PortEvent>& events) {
  const link::PinMap& pins = link::pinMap(lap.pcb());
  const std::int32_t address = link::portAddress(lap.port.LPT.text());
  file << ports::vcd({address, link::controlAddress(address), link::dataPinNames(pins),
                      link::controlPinNames(pins)},
                     events);
  file.close();
  return file.good();
}

}  // namespace

ExitCode upload(const UploadOptions& options) {
  ports::SimulatedPort port;
  host::Pacer pacer;
  ports::Recorder recorder(port, pacer, ports::monotonicTime);
  Session session(
      {options.file, lptIndex(options.lpt), options.pcb}, recorder, recorder,
      [&options](const std::string& text, int style) { return ask(text, style, options.yes); });
  if (const ExitCode opened = session.open(); opened != done) return opened;
  if (!session.lap.setup.Letolt.Enabled) {
    std::cerr << "Ez a Setup az első kiadásé (Vilor), PC-Linken nem tölthető fel.\n";
    return fileError;
  }
  std::ofstream vcdFile;
  if (!options.vcd.empty()) {
    vcdFile.open(options.vcd, std::ios::trunc);
    if (!vcdFile) {
      std::cerr << "A(z) '" << options.vcd << "' fájl nem írható. Adjon meg más helyet!\n";
      return fileError;
    }
  }

  printPort(session.lap);
  std::optional<ports::Received> received;
  std::optional<ports::Wiring> receiver;
  port.received = [&](std::int32_t, const ports::Wiring& wiring, const ports::Received& message) {
    received = message;
    receiver = wiring;
  };
  const std::size_t before = recorder.events().size();
  session.lap.setup.Letolt.click();
  const std::vector<ports::PortEvent> sent(
      recorder.events().begin() + static_cast<std::ptrdiff_t>(before), recorder.events().end());
  if (sent.empty()) std::cout << "Nem ment ki semmi.\n";
  printTiming(sent);
  if (received) printReceived(*receiver, *received);

  if (!options.vcd.empty() && !writeVcd(vcdFile, session.lap, recorder.events())) {
    std::cerr << "A(z) '" << options.vcd << "' fájl írása félbemaradt.\n";
    return fileError;
  }
  return done;
}

}  // namespace monitra::ctl
