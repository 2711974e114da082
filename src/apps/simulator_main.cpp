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

/// Tells what the virtual controllers do: the port's status at once, or a few times a second while
/// something moves; standard output in a line for each message and for each movement that has come
/// to rest.
class Report {
 public:
  Report(shell::Lap& lap, ports::SimulatedPort& port) : lap_(lap) {
    port.received = [this](std::int32_t address, const controller::VirtualController& controller,
                           const controller::Received& message) {
      if (message.kind == controller::Received::Kind::Unknown && !isSelected(controller)) return;
      tellRested();
      tellReceived(place(address, controller), controller, message);
    };
    port.moved = [this](std::int32_t address, const controller::VirtualController& controller) {
      if (!isSelected(controller)) return;
      moving_[&controller] = {address, true};
      if (!timer_.isActive()) timer_.start(interval_);
    };
    board_ = lap.port.PCBV.Caption.observe([this, &port] {
      tellRested();
      port.plugIn(lap_.port.PCBV.Caption.get());
    });
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { look(); });
  }

 private:
  struct Movement {
    std::int32_t address;
    bool sinceLastLook;
  };

  /// The other board's controller hears pins that are not meant for it.
  bool isSelected(const controller::VirtualController& controller) const {
    return controller.wiring().board == lap_.port.PCBV.Caption.get();
  }

  /// The controller's place, as "&H378 PCB V4.x".
  std::string place(std::int32_t address, const controller::VirtualController& controller) const {
    std::string at;
    for (const std::string& entry : lap_.port.LPT.Items) {
      if (link::portAddress(entry) == address) at = entry;
    }
    at += ' ';
    at += controller.wiring().board;
    return at;
  }

  void tellReceived(const std::string& at, const controller::VirtualController& controller,
                    const controller::Received& message) {
    const std::string bytes = controller::bytesText(message.bytes);
    const bool isFrame = message.kind == controller::Received::Kind::Frame;
    const std::string machine =
        isFrame ? " (" + controller::describe(controller.machine()) + ")" : "";
    std::string status = "ezt kapta: " + (isSelected(controller) ? bytes : at + ": " + bytes);
    if (isFrame) status = shown(controller) + "; " + status;
    show(status);
    std::cout << at << ": " << bytes << machine << std::endl;
  }

  void show(const std::string& status) {
    lap_.PortAllapot.show(controls::Status::Plain, "Szimulált port: " + status);
  }

  /// What the machine does, for the status line, which may be too short for all of it: the load
  /// comes first.
  static std::string shown(const controller::VirtualController& controller) {
    const std::string all = controller::describe(controller.machine());
    const std::size_t load = all.find("terhelés");
    return all.substr(load) + ", " + all.substr(0, all.rfind(", ", load));
  }

  void tellRested() {
    for (const auto& [controller, movement] : moving_) {
      std::cout << state(*controller, movement) << std::endl;
    }
    moving_.clear();
    timer_.stop();
  }

  void look() {
    bool rested = true;
    for (auto& [controller, movement] : moving_) {
      show(shown(*controller));
      if (std::exchange(movement.sinceLastLook, false)) rested = false;
    }
    if (rested) tellRested();
  }

  std::string state(const controller::VirtualController& controller,
                    const Movement& movement) const {
    return place(movement.address, controller) + ": " + controller::describe(controller.machine());
  }

  static constexpr int interval_ = 150;

  shell::Lap& lap_;
  std::map<const controller::VirtualController*, Movement> moving_;
  QTimer timer_;
  controls::Observation board_;
};

}  // namespace

int main(int argc, char** argv) {
  host::openStandardDescriptors();
  ports::SimulatedPort port;
  std::unique_ptr<Report> report;
  return apps::run(
      argc, argv,
      {"Monitra Szimulátor", ":/pictures/szimulator.svg", "hu.monitra.Szimulator", port, port,
       [&](shell::Lap& lap) { report = std::make_unique<Report>(lap, port); }});
}
