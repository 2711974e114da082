#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <system_error>

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

/// The terminal in the place of message boxes.
class Terminal {
 public:
  explicit Terminal(bool yes) : yes_(yes) {}

  /// Prints the box, a bad message to standard error, and takes the answer to a question from
  /// standard input; its end counts as No.
  BoxAnswer show(const std::string& text, int style) {
    if (box_style::asksYesNo(style)) return ask(text);
    const bool good = box_style::icon(style) == box_style::information;
    (good ? std::cout << '\n' : std::cerr) << boxLines(text) << '\n';
    return BoxAnswer::Ok;
  }

  bool unanswered() const { return unanswered_; }

 private:
  BoxAnswer ask(const std::string& text) {
    std::cout << '\n' << boxLines(text) << " [I/n] " << std::flush;
    std::string answer = "igen (--yes)";
    if (yes_) {
      std::cout << answer << '\n';
    } else if (!std::getline(std::cin, answer)) {
      std::cout << '\n';
      unanswered_ = true;
      return BoxAnswer::No;
    }
    constexpr std::string_view yesLetters = "iIyY";
    const bool agreed = answer.empty() || yesLetters.find(answer.front()) != std::string_view::npos;
    return agreed ? BoxAnswer::Yes : BoxAnswer::No;
  }

  bool yes_;
  bool unanswered_ = false;
};

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

void printReceived(const ports::VirtualController& controller, const ports::Received& message) {
  std::cout << "\nA virtuális vezérlő (" << controller.wiring().board << ") "
            << message.bytes.size() << " bájtot kapott:\n";
  for (std::size_t position = 0; position < message.bytes.size(); ++position) {
    std::cout << std::setw(4) << position << ": " << std::setw(3)
              << static_cast<int>(message.bytes[position]) << '\n';
  }
  for (const std::string& line : ports::describe(message)) std::cout << line << '\n';
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
  ports::SimulatedPort port;
  host::Pacer pacer;
  ports::Recorder recorder(port, pacer);
  Terminal terminal(options.yes);
  Session session(
      {lptIndex(options.lpt), options.pcb}, recorder, recorder,
      [&terminal](const std::string& text, int style) { return terminal.show(text, style); });
  if (const ExitCode opened = session.openSetup(options.file); opened != done) return opened;
  if (!session.lap.setup.Letolt.Enabled) {
    std::cerr << "Ez a Setup az első kiadásé (Vilor), PC-Linken nem tölthető fel.\n";
    return fileError;
  }
  std::ofstream vcdFile;
  if (!openVcd(vcdFile, options)) return fileError;

  printPort(session.lap);
  const std::size_t before = recorder.events().size();
  bool sent = false;
  session.lap.uploaded.handle([&sent] { sent = true; });
  port.received = [](std::int32_t, const ports::VirtualController& controller,
                     const ports::Received& message) { printReceived(controller, message); };
  session.lap.setup.Letolt.click();
  if (sent) {
    printTiming(
        {recorder.events().begin() + static_cast<std::ptrdiff_t>(before), recorder.events().end()});
  } else {
    std::cout << "Nem ment ki semmi.\n";
  }
  if (!writeVcd(vcdFile, options, session.lap, recorder.events())) return fileError;
  if (!terminal.unanswered()) return done;
  std::cerr << "Nem jött válasz. Kérdés nélkül a --yes kapcsolóval megy.\n";
  return usageError;
}

}  // namespace monitra::ctl
