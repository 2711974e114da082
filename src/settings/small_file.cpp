#include "settings/small_file.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace monitra::settings {

namespace {

constexpr std::size_t largest = std::size_t{1} << 20U;

int readAll(int descriptor, std::string& content) {
  struct stat found {};
  if (::fstat(descriptor, &found) != 0) return errno;
  if (!S_ISREG(found.st_mode)) return EINVAL;
  content.resize(largest + 1);
  std::size_t size = 0;
  while (size < content.size()) {
    const ssize_t got = ::read(descriptor, content.data() + size, content.size() - size);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) break;
    size += static_cast<std::size_t>(got);
  }
  content.resize(size);
  return size > largest ? EFBIG : 0;
}

bool writeAll(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return ::fsync(descriptor) == 0;
}

/// A file of a name beside the path that nobody has; gives the name too.
int createBeside(const std::string& path, std::string& name) {
  constexpr mode_t everyoneAsUmaskAllows = 0666;
  constexpr int tries = 100;
  int descriptor = -1;
  for (int n = 0; n < tries; ++n) {
    name = path + "." + std::to_string(::getpid()) + "-" + std::to_string(n) + ".new";
    descriptor =
        ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, everyoneAsUmaskAllows);
    if (descriptor >= 0 || errno != EEXIST) break;
  }
  return descriptor;
}

}  // namespace

int readSmallFile(const std::string& path, std::string& content) {
  content.clear();
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) return errno;
  const int error = readAll(descriptor, content);
  ::close(descriptor);
  return error;
}

bool replaceFile(const std::string& path, std::string_view content) {
  std::string fresh;
  const int descriptor = createBeside(path, fresh);
  if (descriptor < 0) return false;
  struct stat before {};
  if (::stat(path.c_str(), &before) == 0) ::fchmod(descriptor, before.st_mode & 07777U);
  const bool written = writeAll(descriptor, content);
  const bool closed = ::close(descriptor) == 0;
  if (written && closed && ::rename(fresh.c_str(), path.c_str()) == 0) return true;
  ::unlink(fresh.c_str());
  return false;
}

FolderLock::FolderLock(const std::string& folder)
    : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  constexpr std::chrono::milliseconds pause{5};
  constexpr int tries = 400;
  for (int n = 0; n < tries && ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0; ++n) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    std::this_thread::sleep_for(pause);
  }
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace monitra::settings
