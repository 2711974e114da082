#include "ports/locked_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace monitra::ports {

LockedFile::LockedFile(const std::filesystem::path& path, bool create) {
  constexpr int readableByAll = 0644;
  descriptor_ =
      ::open(path.c_str(), O_RDWR | O_CLOEXEC | (create ? O_CREAT | O_NOFOLLOW : 0), readableByAll);
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

}  // namespace monitra::ports
