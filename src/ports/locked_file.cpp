#include "ports/locked_file.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace monitra::ports {

LockedFile::LockedFile(const std::filesystem::path& path)
    : descriptor_(::open(path.c_str(), O_RDWR | O_CLOEXEC)) {
  if (descriptor_ < 0) error_ = errno;
}

LockedFile::LockedFile(LockedFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)), error_(other.error_) {}

LockedFile& LockedFile::operator=(LockedFile&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  std::swap(error_, other.error_);
  return *this;
}

LockedFile::~LockedFile() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

bool LockedFile::lock() {
  return ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0;
}

bool LockedFile::lockSoon() {
  constexpr int tries = 10;
  for (int n = 1; n < tries; ++n) {
    if (lock()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return lock();
}

LockedFile lockFile(const std::filesystem::path& path) {
  // Another user's file serves as well, but in a folder for all it can't be opened as if it were to
  // be made.
  constexpr mode_t readableByAll = 0644;
  const int common = O_RDONLY | O_CLOEXEC | O_NOFOLLOW;
  int descriptor = ::open(path.c_str(), common);
  if (descriptor < 0) {
    descriptor = ::open(path.c_str(), common | O_CREAT | O_EXCL, readableByAll);
    if (descriptor >= 0) ::fchmod(descriptor, readableByAll);
    if (descriptor < 0 && errno == EEXIST) descriptor = ::open(path.c_str(), common);
  }
  return {descriptor, descriptor < 0 ? errno : 0};
}

}  // namespace monitra::ports
