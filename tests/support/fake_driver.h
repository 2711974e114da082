#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>

#include "ports/port_driver.h"
#include "support/journal.h"

namespace monitra::support {

/// A driver whose ports a test makes and takes away. Tells "look0", "open0", "open0(E)" where a
/// control value is to be put back, "0D=20" for a write, "0D?" for a read, "close0".
struct FakeDriver : ports::PortDriver {
  using Register = ports::Register;
  using Kind = platform::PortState::Kind;
  using Found = ports::FoundPort;

  struct Port : ports::OpenPort {
    Port(FakeDriver& of, const Found& found) : driver(of), port(found) {}
    ~Port() override { driver.tell("close" + std::to_string(port.number)); }
    std::optional<std::uint8_t> read(Register which) override {
      if (driver.fails()) return {};
      driver.tell(std::to_string(port.number) + (which == Register::Data ? "D?" : "C?"));
      return values[which];
    }
    bool write(Register which, std::uint8_t value) override {
      if (driver.fails()) return false;
      driver.tell(std::to_string(port.number) + (which == Register::Data ? "D=" : "C=") +
                  hex(value));
      values[which] = value;
      return true;
    }
    bool present() override {
      return !driver.fails() && std::ranges::count(driver.found, port) > 0;
    }

    FakeDriver& driver;
    Found port;
    std::map<Register, std::uint8_t> values;
  };

  explicit FakeDriver(std::function<void(const std::string&)> listener, std::string ownName = {})
      : tell(std::move(listener)), name(std::move(ownName)) {}

  std::vector<Found> find() override { return fails() ? std::vector<Found>() : found; }
  platform::PortState none() const override { return {.kind = Kind::NoPort}; }
  platform::PortState look(const Found& port) override {
    tell(name + "look" + std::to_string(port.number));
    return {.kind = refusal(port).value_or(Kind::Untried)};
  }
  ports::Opening open(const Found& port, std::optional<std::uint8_t> control) override {
    tell(name + "open" + std::to_string(port.number) + (control ? "(" + hex(*control) + ")" : ""));
    if (const auto kind = refusal(port)) return {nullptr, {.kind = *kind}};
    return {std::make_unique<Port>(*this, port), {.kind = Kind::Kernel}};
  }
  std::optional<Kind> refusal(const Found& port) {
    if (fails()) return Kind::Failed;
    return refused.contains(port.number) ? std::optional(refused[port.number]) : std::nullopt;
  }

  std::function<void(const std::string&)> tell;
  std::string name;
  std::vector<Found> found;
  std::map<int, Kind> refused;
  std::function<bool()> fails = [] { return false; };  ///< asked at each call to it or a port
};

}  // namespace monitra::support
