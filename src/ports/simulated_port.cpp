#include "ports/simulated_port.h"

namespace monitra::ports {

SimulatedPort::SimulatedPort() {
  for (const std::int32_t address : {0x378, 0x278, 0x3BC}) {
    auto& controllers = controllers_[address];
    for (const Wiring& wiring : {wiringV32, wiringV4x}) {
      controllers.emplace_back(wiring).received = [this, address, wiring](const Received& message) {
        if (received) received(address, wiring, message);
      };
    }
  }
}

std::uint8_t SimulatedPort::DlPortReadPortUchar(std::int32_t address) {
  return registers_.DlPortReadPortUchar(address);
}

void SimulatedPort::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  registers_.DlPortWritePortUchar(address, value);
  const auto found = controllers_.find(address);
  if (found == controllers_.end()) return;
  for (VirtualController& controller : found->second) controller.pins(value);
}

}  // namespace monitra::ports
