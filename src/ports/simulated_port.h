#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string_view>
#include <vector>

#include "controller/virtual_controller.h"
#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "ports/register_memory.h"

namespace monitra::ports {

using controller::Received;
using controller::VirtualController;

/// Printer ports at the three usual addresses. On each hangs a virtual controller of either board
/// revision, and both see the levels of all pins.
class SimulatedPort : public platform::PortRegisters, public platform::PortStates {
 public:
  using Clock = std::function<std::chrono::nanoseconds()>;

  /// The clock is monotonic.
  explicit SimulatedPort(Clock clock = [] {
    return std::chrono::steady_clock::now().time_since_epoch();
  });

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;

  platform::PortState state(std::int32_t entry) override {
    return {.kind = platform::PortState::Kind::Simulated, .address = entry};
  }
  void tryAgain(std::int32_t /*entry*/) override {}
  long vanished() const override { return 0; }

  /// On every port a machine with this board comes new in place of the one with the same board,
  /// which has seen pins that were meant for another.
  void plugIn(std::string_view board);

  /// What one of the controllers has taken, or that its machine has moved; with the data address of
  /// its port.
  std::function<void(std::int32_t, const VirtualController&, const Received&)> received;
  std::function<void(std::int32_t, const VirtualController&)> moved;

 private:
  struct Port {
    std::vector<VirtualController> controllers;
    std::chrono::nanoseconds lastWrite{};
  };

  Clock clock_;
  RegisterMemory registers_;
  std::map<std::int32_t, Port> ports_;
};

}  // namespace monitra::ports
