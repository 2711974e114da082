#include "ports/raw_driver.h"

#include <algorithm>
#include <sys/io.h>
#include <utility>

namespace monitra::ports {

namespace {

using platform::PortState;
using Kind = PortState::Kind;

constexpr int registers = 3;
constexpr std::uint8_t nothing = 0xFF;

/// The registers of one port. The right to use them stays with the process: other objects may stand
/// for the same ones.
class Access {
 public:
  explicit Access(std::int32_t address)
      : address_(address),
        given_(::ioperm(static_cast<unsigned long>(address), registers, 1) == 0) {}

  bool given() const { return given_; }

  std::uint8_t in(std::int32_t offset) const {
    return ::inb(static_cast<unsigned short>(address_ + offset));
  }
  void out(std::int32_t offset, std::uint8_t value) const {
    ::outb(value, static_cast<unsigned short>(address_ + offset));
  }

  /// An address without a port reads as all ones.
  bool answers() const {
    return given_ && (in(0) != nothing || in(1) != nothing || in(controlOffset) != nothing);
  }

 private:
  std::int32_t address_;
  bool given_;
};

class RawPort : public OpenPort {
 public:
  RawPort(Access access, LockedFile address, LockedFile node)
      : access_(access),
        address_(std::move(address)),
        node_(std::move(node)),
        interrupt_(access_.in(controlOffset)&interruptBit) {}

  std::optional<std::uint8_t> read(Register which) override {
    if (which == Register::Data) return access_.in(0);
    return static_cast<std::uint8_t>(access_.in(controlOffset)&controlLines);
  }

  bool write(Register which, std::uint8_t value) override {
    if (which == Register::Data) {
      access_.out(0, value);
    } else {
      access_.out(controlOffset, static_cast<std::uint8_t>((value & controlLines) | interrupt_));
    }
    return true;
  }

  bool present() override { return true; }

 private:
  static constexpr std::uint8_t interruptBit = 0x10;

  Access access_;
  LockedFile address_;
  LockedFile node_;
  std::uint8_t interrupt_;  ///< stays as it was found
};

}  // namespace

std::vector<FoundPort> RawDriver::find() {
  std::vector<FoundPort> found = folder_.ports();
  std::erase_if(found, [](const FoundPort& port) { return !Access(port.address).answers(); });
  int number = found.empty() ? 0 : found.back().number + 1;
  for (const std::int32_t address : entryAddresses) {
    const bool known = std::ranges::count(found, address, &FoundPort::address) > 0;
    if (!known && Access(address).answers()) found.push_back({number++, address});
  }
  return found;
}

PortState RawDriver::none() const {
  return {.kind = Access(entryAddresses.front()).given() ? Kind::NoPort : Kind::NoRegisters};
}

PortState RawDriver::look(const FoundPort& port) {
  return lookAndLock(port).state;
}

/// The locks of a port that can be had, or why it can't be. Nothing keeps the kernel's other
/// drivers from the registers, so none may be there.
RawDriver::Locked RawDriver::lookAndLock(const FoundPort& port) {
  Locked locked{{.kind = Kind::Busy, .address = port.address},
                lockFile(folder_.lock(port)),
                LockedFile(folder_.node(port))};
  if (folder_.exists(port)) locked.state.node = folder_.node(port);
  const bool isFree =
      locked.address.lockSoon() && (!locked.node.isOpen() || locked.node.lockSoon());
  const std::vector<std::string> registered = folder_.registered(port);
  if (!locked.address.isOpen()) {
    const int error = locked.address.error();
    // The file would be made, so what is not found is its folder.
    locked.state.kind = error == ENOENT ? Kind::NoLockFolder : Kind::Failed;
    locked.state.error = error;
  } else if (isFree && registered.empty()) {
    locked.state.kind = Kind::Untried;
    locked.state.node.clear();
  } else if (registered == std::vector<std::string>{std::string(printerDriver)} && isFree) {
    locked.state.holder = printerDriver;
    locked.state.holderIsDriver = true;
  } else {
    findHolder(folder_, port, locked.state);
  }
  return locked;
}

Opening RawDriver::open(const FoundPort& port, std::optional<std::uint8_t> /*lastControl*/) {
  Locked locked = lookAndLock(port);
  Opening opening{nullptr, locked.state};
  if (opening.state.kind != Kind::Untried) return opening;
  const Access access(port.address);
  opening.state.kind = access.given() ? Kind::Raw : Kind::NoRegisters;
  if (!access.given()) return opening;
  opening.port =
      std::make_unique<RawPort>(access, std::move(locked.address), std::move(locked.node));
  return opening;
}

std::optional<std::uint8_t> controlPins(std::int32_t address) {
  const Access access(address);
  if (!access.answers()) return {};
  return static_cast<std::uint8_t>(access.in(controlOffset)&controlLines);
}

}  // namespace monitra::ports
