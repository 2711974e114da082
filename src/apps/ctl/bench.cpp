#include "apps/ctl/bench.h"

#include <iomanip>
#include <iostream>

#include "link/pin_names.h"
#include "shell/port_texts.h"

namespace monitra::ctl {

namespace {

using platform::BoxAnswer;
using platform::PortState;

ports::Ways waysOf(const std::string& port) {
  if (port == "kernel") return ports::Ways::KernelOnly;
  return port == "raw" ? ports::Ways::RawOnly : ports::Ways::All;
}

std::string lptIndex(const std::string& digits) {
  if (digits.empty()) return {};
  return digits == "378" ? "0" : digits == "278" ? "1" : "2";
}

void printReceived(const controller::VirtualController& controller,
                   const controller::Received& message) {
  std::cout << "\nA virtuális vezérlő (" << controller.wiring().board << ") "
            << message.bytes.size() << " bájtot kapott:\n";
  for (std::size_t position = 0; position < message.bytes.size(); ++position) {
    std::cout << std::setw(4) << position << ": " << std::setw(3)
              << static_cast<int>(message.bytes[position]) << '\n';
  }
  for (const std::string& line : controller::describe(message)) std::cout << line << '\n';
}

}  // namespace

Bench::Bench(const PortOptions& options)
    : options_(options),
      simulated_(options.port == "sim" ? std::make_unique<ports::SimulatedPort>() : nullptr),
      real_(simulated_ ? nullptr : std::make_unique<ports::RealPorts>(waysOf(options.port))),
      recorder_(registers(), pacer_),
      connection_(recorder_),
      terminal_(options.yes),
      session_({lptIndex(options.lpt), options.pcb}, connection_, states(), recorder_,
               simulated_ ? Session::Uploads::Forgotten : Session::Uploads::Kept,
               [this](const std::string& text, int style) { return answer(text, style); }) {
  isUnset_ = !session_.hasPreferences() && (options.lpt.empty() || options.pcb.empty());
  if (!simulated_) return;
  simulated_->received = [](std::int32_t, const controller::VirtualController& controller,
                            const controller::Received& message) {
    printReceived(controller, message);
  };
}

Bench::~Bench() {
  std::cout.flush();
}

ExitCode Bench::tellPort() {
  const link::PinMap& pins = link::pinMap(lap().pcb());
  const auto names = link::dataPinNames(pins);
  const PortState present = state();
  if (!present.inUse() && present.kind != PortState::Kind::Untried) {
    tellUnusable();
    return portError;
  }
  if (simulated_) {
    std::cout << "Szimulált port: ";
  } else {
    std::cout << shell::portText(present, lap().port.LPT.text()) << '\n';
    if (isUnset_) {
      std::cerr << "Ennél a felhasználónál a program még nem futott, a port és a panel "
                   "alapértéken áll. Adja meg: --lpt, --pcb!\n";
      if (options_.yes) return usageError;
    }
  }
  std::cout << lap().port.LPT.text() << ", " << lap().port.PCBV.Caption.get()
            << " (adat: " << names[pins.SorosAdatBit] << ", órajel: " << names[pins.SorosOrajelBit]
            << ")\n";
  return done;
}

ExitCode Bench::askAndDo(const std::string& question, const std::function<void()>& what) {
  if (const ExitCode usable = tellPort(); usable != done) return usable;
  namespace box_style = platform::box_style;
  if (answer(question, box_style::question | box_style::yesNo) == BoxAnswer::Yes) {
    what();
  } else {
    std::cout << "Nem ment ki semmi.\n";
  }
  const ExitCode ended = closing();
  if (ended == done && !events().empty()) std::cout << "Kiküldve.\n";
  return ended;
}

ExitCode Bench::closing() {
  if (terminal_.unanswered()) {
    std::cerr << "Nem jött válasz. Kérdés nélkül a --yes kapcsolóval megy.\n";
    return usageError;
  }
  if (refused_) return portError;
  if (states().vanished() == 0 && (events().empty() || state().inUse())) return done;
  std::cerr << "Nem minden ment ki.\n";
  tellUnusable();
  return portError;
}

platform::PortStates& Bench::states() {
  if (simulated_) return *simulated_;
  return *real_;
}

platform::PortRegisters& Bench::registers() {
  if (simulated_) return *simulated_;
  return *real_;
}

PortState Bench::state() {
  return states().state(lap().selectedAddress());
}

BoxAnswer Bench::answer(const std::string& text, int style) {
  const BoxAnswer given = terminal_.show(text, style);
  if (given != BoxAnswer::Yes || connect()) return given;
  refused_ = true;
  tellUnusable();
  return BoxAnswer::No;
}

/// Opens the port and puts the serial line to idle, as the tab "PC-Link" does.
bool Bench::connect() {
  heldSignals_.emplace();
  connection_.connect();
  lap().SSTab1.Tab = shell::Lap::tabOfPcLink;
  firstSent_ = events().size();
  return state().inUse();
}

void Bench::tellUnusable() {
  printRemedy(std::cerr, shell::portRemedy(state(), lap().port.LPT.text()));
}

}  // namespace monitra::ctl
