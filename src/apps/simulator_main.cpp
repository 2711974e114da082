#include <QTimer>
#include <cstdint>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "apps/window_program.h"
#include "host/executable.h"
#include "link/port_selection.h"
#include "ports/simulated_port.h"

namespace {

using namespace monitra;

/// Tells what the virtual controllers do: the port's status at once or a few times a second,
/// standard output in a line for each message and for each movement that has come to rest.
class Report {
 public:
  Report(shell::Lap& lap, ports::SimulatedPort& port) : lap_(lap) {
    port.received = [this](std::int32_t address, const ports::VirtualController& controller,
                           const ports::Received& message) {
      if (message.kind == ports::Received::Kind::Unknown && !isSelected(controller)) return;
      tellRested();
      tellReceived(place(address, controller), controller, message);
    };
    port.moved = [this](std::int32_t address, const ports::VirtualController& controller) {
      if (!isSelected(controller)) return;
      moving_[&controller] = {address, true};
    };
    lap.port.PCBV.Caption.observe([this, &port] {
      tellRested();
      port.plugIn(lap_.port.PCBV.Caption.get());
    });
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
    timer_.start(interval_);
  }

 private:
  struct Movement {
    std::int32_t address;
    bool sinceLastLook;
  };

  /// The other board's controller hears pins that are not meant for it.
  bool isSelected(const ports::VirtualController& controller) const {
    return controller.wiring().board == lap_.port.PCBV.Caption.get();
  }

  /// The controller's place, as "&H378 PCB V4.x".
  std::string place(std::int32_t address, const ports::VirtualController& controller) const {
    std::string at;
    for (const std::string& entry : lap_.port.LPT.Items) {
      if (link::portAddress(entry) == address) at = entry;
    }
    at += ' ';
    at += controller.wiring().board;
    return at;
  }

  void tellReceived(const std::string& at, const ports::VirtualController& controller,
                    const ports::Received& message) {
    std::string heard = ports::bytesText(message.bytes);
    if (message.kind == ports::Received::Kind::Frame) {
      heard += " (" + ports::describe(controller.machine()) + ")";
    }
    lap_.PortAllapot.Caption =
        "Szimulált port, ezt kapta: " + (isSelected(controller) ? heard : at + ": " + heard);
    std::cout << at << ": " << heard << std::endl;
  }

  void tellRested() {
    for (const auto& [controller, movement] : moving_) {
      std::cout << state(*controller, movement) << std::endl;
    }
    moving_.clear();
  }

  void look() {
    bool rested = true;
    for (auto& [controller, movement] : moving_) {
      lap_.PortAllapot.Caption = "Szimulált port: " + ports::describe(controller->machine());
      if (std::exchange(movement.sinceLastLook, false)) rested = false;
    }
    if (rested) tellRested();
  }

  std::string state(const ports::VirtualController& controller, const Movement& movement) const {
    return place(movement.address, controller) + ": " + ports::describe(controller.machine());
  }

  static constexpr int interval_ = 150;

  shell::Lap& lap_;
  std::map<const ports::VirtualController*, Movement> moving_;
  QTimer timer_;
};

}  // namespace

int main(int argc, char** argv) {
  host::openStandardDescriptors();
  ports::SimulatedPort port;
  std::unique_ptr<Report> report;
  return apps::run(argc, argv,
                   {"Monitra Szimulátor", ":/pictures/szimulator.svg", port, port,
                    [&](shell::Lap& lap) { report = std::make_unique<Report>(lap, port); }});
}
