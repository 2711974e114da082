#include "ports/kernel_driver.h"

#include <cerrno>
#include <grp.h>
#include <linux/ppdev.h>
#include <pwd.h>
#include <string_view>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "ports/locked_file.h"
#include "ports/raw_driver.h"

namespace monitra::ports {

namespace {

using platform::PortState;
using Kind = PortState::Kind;
using Devices = std::vector<std::string>;

class KernelPort : public OpenPort {
 public:
  KernelPort(LockedFile node, LockedFile address, std::filesystem::path path)
      : node_(std::move(node)), address_(std::move(address)), path_(std::move(path)) {}

  std::optional<std::uint8_t> read(Register which) override {
    std::uint8_t value = 0;
    const unsigned long request = which == Register::Data ? PPRDATA : PPRCONTROL;
    if (::ioctl(node_.descriptor(), request, &value) != 0) return {};
    return which == Register::Data ? value : static_cast<std::uint8_t>(value & controlLines);
  }

  bool write(Register which, std::uint8_t value) override {
    if (which == Register::Control) value &= controlLines;
    const unsigned long request = which == Register::Data ? PPWDATA : PPWCONTROL;
    return ::ioctl(node_.descriptor(), request, &value) == 0;
  }

  /// A port that is gone leaves its open file behind, but not its node, and a new one by the same
  /// name has another node.
  bool present() override {
    struct stat opened {};
    struct stat now {};
    return ::fstat(node_.descriptor(), &opened) == 0 && ::stat(path_.c_str(), &now) == 0 &&
           opened.st_dev == now.st_dev && opened.st_ino == now.st_ino;
  }

 private:
  LockedFile node_;
  LockedFile address_;
  std::filesystem::path path_;
};

/// Claims the port, and puts back at once the control lines that the driver's claim moves.
bool claim(int descriptor, std::optional<std::uint8_t> lastControl) {
  const std::uint8_t lines = lastControl.value_or(0) & controlLines;
  if (::ioctl(descriptor, PPCLAIM) != 0) return false;
  if (lastControl) ::ioctl(descriptor, PPWCONTROL, &lines);
  return true;
}

/// Who may open a file that this process may not.
struct Members {
  std::string group;  ///< empty if it is no question of a group
  bool hasUser;       ///< the user is one of them, which this session doesn't know of yet
};

Members membersFor(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || (status.st_mode & S_IWGRP) == 0) return {};
  const group* const owners = ::getgrgid(status.st_gid);
  if (owners == nullptr || ::geteuid() == 0 || ::group_member(status.st_gid) != 0) return {};
  Members members{owners->gr_name, false};
  const passwd* const user = ::getpwuid(::geteuid());
  for (char** member = owners->gr_mem; user != nullptr && *member != nullptr; ++member) {
    if (std::string_view(*member) == user->pw_name) members.hasUser = true;
  }
  return members;
}

}  // namespace

PortState KernelDriver::none() const {
  if (folder_.searches()) return {.kind = Kind::NoPort};
  return {.kind = Kind::NoDriver, .comesAtStart = folder_.loadsAtStart()};
}

PortState KernelDriver::look(const FoundPort& port) {
  LockedFile node(folder_.node(port));
  if (!node.isOpen()) return refused(port, node.error());
  LockedFile address = lockFile(folder_.lock(port));
  if (!node.lock() || (address.isOpen() && !address.lock())) return busy(port);
  const Devices registered = folder_.registered(port);
  if (registered.empty()) return of(port, Kind::Untried);
  if (registered != Devices{std::string(printerDriver)}) return busy(port);
  if (!folder_.active(port).empty()) return of(port, Kind::Printing);
  PortState state = of(port, Kind::Untried);
  state.shared = true;
  return state;
}

Opening KernelDriver::open(const FoundPort& port, std::optional<std::uint8_t> lastControl) {
  LockedFile address = lockFile(folder_.lock(port));
  if (address.isOpen() && !address.lockSoon()) return {nullptr, busy(port)};
  // What stands on the pins is the truth, where the process may look at it.
  if (const auto present = controlPins(port.address)) lastControl = present;
  // Alone if the kernel lets us; beside the printer's driver only while that is idle, or the claim
  // would wait for it. Two programs beside each other would never come free again: hence the lock.
  for (const bool alone : {true, false}) {
    if (alone && hasPrinterDriverOnly(port)) continue;
    LockedFile node(folder_.node(port));
    if (!node.isOpen()) return {nullptr, refused(port, node.error())};
    if (!node.lockSoon()) return {nullptr, busy(port)};
    if (alone && ::ioctl(node.descriptor(), PPEXCL) != 0) return {nullptr, refused(port, errno)};
    if (!alone && !folder_.active(port).empty()) return {nullptr, of(port, Kind::Printing)};
    if (claim(node.descriptor(), lastControl)) {
      Opening opening{
          std::make_unique<KernelPort>(std::move(node), std::move(address), folder_.node(port)),
          of(port, Kind::Kernel)};
      opening.state.shared = !alone;
      return opening;
    }
    if (errno != ENXIO) return {nullptr, refused(port, errno)};
    if (!folder_.exists(port)) return {nullptr, none()};
    if (!hasPrinterDriverOnly(port)) break;
  }
  return {nullptr, busy(port)};
}

bool KernelDriver::hasPrinterDriverOnly(const FoundPort& port) const {
  return folder_.registered(port) == Devices{std::string(printerDriver)};
}

PortState KernelDriver::of(const FoundPort& port, Kind kind) const {
  return {.kind = kind, .address = port.address, .node = folder_.node(port)};
}

PortState KernelDriver::refused(const FoundPort& port, int error) const {
  if (error == ENOENT || error == ENXIO || error == ENODEV) {
    if (!folder_.servesPrograms()) return of(port, Kind::NoNode);
    return folder_.exists(port) ? of(port, Kind::Hidden) : none();
  }
  PortState state = of(port, Kind::Failed);
  state.error = error;
  if (error != EACCES) return state;
  const Members members = membersFor(folder_.node(port));
  if (members.group.empty()) return state;
  state = of(port, members.hasUser ? Kind::NotYetMember : Kind::NoPermission);
  state.group = members.group;
  state.forSeat = folder_.forSeat(port);
  return state;
}

PortState KernelDriver::busy(const FoundPort& port) const {
  PortState state = of(port, Kind::Busy);
  findHolder(folder_, port, state);
  return state;
}

}  // namespace monitra::ports
