#include "ports/raw_driver.h"

#include <algorithm>
#include <cerrno>
#include <sstream>
#include <utility>

#include "ports/locked_file.h"

#if defined(__x86_64__) || defined(__i386__)
#include <sys/io.h>
#else
// Other PCs have no such registers, so the right to use them is never given.
static int ioperm(unsigned long, unsigned long, int) {
  errno = EPERM;
  return -1;
}
static unsigned char inb(unsigned short) {
  return 0xFF;
}
static void outb(unsigned char, unsigned short) {}
#endif

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
  RawPort(Access access, LockedFile lock)
      : access_(access),
        lock_(std::move(lock)),
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
  LockedFile lock_;
  std::uint8_t interrupt_;  ///< stays as it was found
};

/// What programs lock that use this port: its node, where it has one, or else a file of our own.
LockedFile lockFor(const std::filesystem::path& node, std::int32_t address) {
  LockedFile lock(node);
  if (lock.isOpen()) return lock;
  std::ostringstream name;
  name << "/run/lock/monitra-" << std::hex << address;
  return LockedFile(name.str(), true);
}

}  // namespace

std::vector<FoundPort> RawDriver::find() {
  std::vector<FoundPort> found = folder_.ports();
  std::erase_if(found, [](const FoundPort& port) { return !Access(port.address).answers(); });
  int number = found.empty() ? 0 : found.back().number + 1;
  for (const std::int32_t address : {0x378, 0x278, 0x3BC}) {
    const bool known = std::ranges::count(found, address, &FoundPort::address) > 0;
    if (!known && Access(address).answers()) found.push_back({number++, address});
  }
  return found;
}

PortState RawDriver::none() {
  return {.kind = Access(0x378).given() ? Kind::NoPort : Kind::NoRegisters};
}

PortState RawDriver::look(const FoundPort& port) {
  PortState state{.kind = Kind::Untried, .address = port.address};
  LockedFile lock = lockFor(folder_.node(port), port.address);
  if (!lock.isOpen()) {
    state.kind = Kind::Failed;
    state.error = lock.error();
  } else if (!lock.lock()) {
    state.kind = Kind::Busy;
    state.node = folder_.exists(port) ? folder_.node(port).string() : std::string{};
    state.holder = programHolding(folder_.node(port));
  } else if (const std::string active = folder_.active(port); !active.empty()) {
    state.kind = active == printerDriver ? Kind::Printing : Kind::Busy;
    state.holder = active;
    state.holderIsDriver = true;
  }
  return state;
}

Opening RawDriver::open(const FoundPort& port, std::optional<std::uint8_t> /*lastControl*/) {
  Opening opening{nullptr, look(port)};
  if (opening.state.kind != Kind::Untried) return opening;
  LockedFile lock = lockFor(folder_.node(port), port.address);
  Access access(port.address);
  if (!access.given()) {
    opening.state.kind = Kind::NoRegisters;
  } else if (!lock.lock()) {
    opening.state.kind = Kind::Busy;
  } else {
    opening.state.kind = Kind::Raw;
    opening.port = std::make_unique<RawPort>(access, std::move(lock));
  }
  return opening;
}

}  // namespace monitra::ports
