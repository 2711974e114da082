#include "ports/kernel_driver.h"

#include <algorithm>
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

namespace monitra::ports {

namespace {

using platform::PortState;
using Kind = PortState::Kind;
using Devices = std::vector<std::string>;

class KernelPort : public OpenPort {
 public:
  KernelPort(LockedFile node, std::filesystem::path path)
      : node_(std::move(node)), path_(std::move(path)) {}

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
  std::filesystem::path path_;
};

/// Claims the port, and puts back at once the control lines that the driver's claim moves.
bool claim(int descriptor, std::optional<std::uint8_t> lastControl) {
  const std::uint8_t lines = lastControl.value_or(0) & controlLines;
  if (::ioctl(descriptor, PPCLAIM) != 0) return false;
  if (lastControl) ::ioctl(descriptor, PPWCONTROL, &lines);
  return true;
}

/// Whether the user belongs to the file's group, which this session doesn't know of yet.
bool isMemberSinceLogin(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0 || (status.st_mode & S_IWGRP) == 0) return false;
  const passwd* const user = ::getpwuid(::geteuid());
  const group* const owners = ::getgrgid(status.st_gid);
  if (user == nullptr || owners == nullptr) return false;
  for (char** member = owners->gr_mem; *member != nullptr; ++member) {
    if (std::string_view(*member) == user->pw_name) return true;
  }
  return false;
}

}  // namespace

PortState KernelDriver::none() {
  return {.kind = folder_.searches() ? Kind::NoPort : Kind::NoDriver};
}

PortState KernelDriver::look(const FoundPort& port) {
  LockedFile node(folder_.node(port));
  if (!node.isOpen()) return refused(port, node.error());
  if (!node.lock()) return busy(port);
  const Devices registered = folder_.registered(port);
  if (registered.empty()) return of(port, Kind::Untried);
  if (registered != Devices{std::string(printerDriver)}) return busy(port);
  if (!folder_.active(port).empty()) return of(port, Kind::Printing);
  PortState state = of(port, Kind::Untried);
  state.shared = true;
  return state;
}

Opening KernelDriver::open(const FoundPort& port, std::optional<std::uint8_t> lastControl) {
  // Alone if the kernel lets us; beside the printer's driver only while that is idle, or the claim
  // would wait for it. Two programs beside each other would never come free again: hence the lock.
  for (const bool alone : {true, false}) {
    LockedFile node(folder_.node(port));
    if (!node.isOpen()) return {nullptr, refused(port, node.error())};
    if (!node.lock()) return {nullptr, busy(port)};
    if (alone && ::ioctl(node.descriptor(), PPEXCL) != 0) return {nullptr, refused(port, errno)};
    if (!alone && !folder_.active(port).empty()) return {nullptr, of(port, Kind::Printing)};
    if (claim(node.descriptor(), lastControl)) {
      Opening opening{std::make_unique<KernelPort>(std::move(node), folder_.node(port)),
                      of(port, Kind::Kernel)};
      opening.state.shared = !alone;
      return opening;
    }
    if (errno != ENXIO) return {nullptr, refused(port, errno)};
    if (!folder_.exists(port)) return {nullptr, none()};
    if (folder_.registered(port) != Devices{std::string(printerDriver)}) break;
  }
  return {nullptr, busy(port)};
}

PortState KernelDriver::of(const FoundPort& port, Kind kind) const {
  return {.kind = kind, .address = port.address, .node = folder_.node(port)};
}

PortState KernelDriver::refused(const FoundPort& port, int error) const {
  if (error == EACCES || error == EPERM) {
    return of(port,
              isMemberSinceLogin(folder_.node(port)) ? Kind::NotYetMember : Kind::NoPermission);
  }
  if (error == ENOENT || error == ENXIO || error == ENODEV) {
    return of(port, folder_.servesPrograms() ? Kind::NoPort : Kind::NoNode);
  }
  PortState state = of(port, Kind::Failed);
  state.error = error;
  return state;
}

PortState KernelDriver::busy(const FoundPort& port) const {
  constexpr std::string_view forPrograms = "ppdev";
  PortState state = of(port, Kind::Busy);
  for (const std::string& name : folder_.registered(port)) {
    if (name.starts_with(forPrograms) || name == printerDriver) continue;
    state.holder = name;
    state.holderIsDriver = true;
    return state;
  }
  state.holder = programHolding(folder_.node(port));
  return state;
}

}  // namespace monitra::ports
