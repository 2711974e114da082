#include "ports/control_memory.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace monitra::ports {

namespace {

namespace fs = std::filesystem;

/// The session's folder, or where there is no session one for the user among the temporary files.
fs::path runtimeFolder() {
  const std::string user = std::to_string(::geteuid());
  const char* const session = std::getenv("XDG_RUNTIME_DIR");
  struct stat status {};
  // That of another user stays in force where root's rights were taken on for a moment.
  if (session != nullptr && *session == '/' && ::stat(session, &status) == 0 &&
      status.st_uid == ::geteuid()) {
    return fs::path(session) / "monitra";
  }
  std::error_code error;
  const fs::path usual = fs::path("/run/user") / user;
  if (fs::exists(usual, error)) return usual / "monitra";
  return "/tmp/monitra-" + user;
}

/// Whether the folder is there, is the user's own and nobody else's to write in.
bool makeOwnFolder(const fs::path& folder) {
  constexpr mode_t onlyOwner = 0700;
  ::mkdir(folder.c_str(), onlyOwner);
  struct stat status {};
  return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

}  // namespace

ControlMemory::ControlMemory(fs::path folder, std::string boot)
    : folder_(std::move(folder)), boot_(std::move(boot)) {}

ControlMemory ControlMemory::ofUser() {
  std::ifstream stream("/proc/sys/kernel/random/boot_id");
  std::string boot;
  stream >> boot;
  return {runtimeFolder(), boot};
}

std::optional<std::uint8_t> ControlMemory::last(std::int32_t address) const {
  struct stat status {};
  if (::lstat(file(address).c_str(), &status) != 0 || status.st_uid != ::geteuid()) return {};
  std::ifstream stream(file(address));
  std::string boot;
  unsigned value = 0;
  constexpr unsigned most = 0xFF;
  if (!(stream >> boot >> std::hex >> value) || boot != boot_ || value > most) return {};
  return static_cast<std::uint8_t>(value);
}

void ControlMemory::keep(std::int32_t address, std::uint8_t value) const {
  if (!makeOwnFolder(folder_)) return;
  constexpr mode_t onlyOwner = 0600;
  const int opened =
      ::open(file(address).c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, onlyOwner);
  if (opened < 0) return;
  // Always as long as before, so that at no moment half a value stands there.
  std::ostringstream line;
  line << boot_ << ' ' << std::hex << (value >> 4) << (value & 0xF) << '\n';
  [[maybe_unused]] const ssize_t written = ::write(opened, line.str().data(), line.str().size());
  ::close(opened);
}

fs::path ControlMemory::file(std::int32_t address) const {
  std::ostringstream name;
  name << "control-" << std::hex << address;
  return folder_ / name.str();
}

}  // namespace monitra::ports
