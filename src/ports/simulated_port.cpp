#include "ports/simulated_port.h"

#include <utility>

#include "ports/port_driver.h"

namespace monitra::ports {

namespace {

/// A sender holds each level for a millisecond; a controller that waits for more gives up.
constexpr std::chrono::milliseconds patience{200};

}  // namespace

SimulatedPort::SimulatedPort(Clock clock) : clock_(std::move(clock)) {
  for (const std::int32_t address : entryAddresses) {
    auto& controllers = ports_[address].controllers;
    controllers = {VirtualController(controller::wiringV32),
                   VirtualController(controller::wiringV4x)};
    for (VirtualController& controller : controllers) {
      controller.received = [this, address, &controller](const Received& message) {
        if (received) received(address, controller, message);
      };
      controller.moved = [this, address, &controller] {
        if (moved) moved(address, controller);
      };
    }
  }
}

void SimulatedPort::plugIn(std::string_view board) {
  for (auto& [address, port] : ports_) {
    for (VirtualController& controller : port.controllers) {
      if (controller.wiring().board == board) controller.restart();
    }
  }
}

std::uint8_t SimulatedPort::DlPortReadPortUchar(std::int32_t address) {
  return registers_.DlPortReadPortUchar(address);
}

void SimulatedPort::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  registers_.DlPortWritePortUchar(address, value);
  if (const auto control = ports_.find(address - controlOffset); control != ports_.end()) {
    for (VirtualController& controller : control->second.controllers) controller.controlPins(value);
  }
  const auto data = ports_.find(address);
  if (data == ports_.end()) return;
  const std::chrono::nanoseconds now = clock_();
  const bool paused = now - std::exchange(data->second.lastWrite, now) > patience;
  for (VirtualController& controller : data->second.controllers) {
    if (paused) controller.pause();
    controller.dataPins(value);
  }
}

}  // namespace monitra::ports
