#include "host/host_files.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace monitra::host {

using platform::Failure;

namespace {

Failure failureOf(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
      return Failure::PathFileAccess;
    case ENOENT:
      return Failure::FileNotFound;
    case EEXIST:
      return Failure::FileExists;
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
      return Failure::PathNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return Failure::DiskFull;
    default:
      return Failure::DeviceIo;
  }
}

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(Descriptor&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { close(); }

  int get() const { return fd_; }
  Failure close() {
    if (fd_ < 0) return Failure::None;
    return ::close(std::exchange(fd_, -1)) == 0 ? Failure::None : failureOf(errno);
  }

 private:
  int fd_;
};

class HostReader : public platform::ByteReader {
 public:
  explicit HostReader(Descriptor file) : file_(std::move(file)) {}

  Failure read(std::string& chunk) override {
    constexpr std::size_t chunkSize = 65536;
    chunk.resize(chunkSize);
    ssize_t got = 0;
    do {
      got = ::read(file_.get(), chunk.data(), chunk.size());
    } while (got < 0 && errno == EINTR);
    const int error = errno;
    chunk.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return got < 0 ? failureOf(error) : Failure::None;
  }

 private:
  Descriptor file_;
};

/// Whether fsync has nothing to do there, as with a pipe.
bool cannotBeSynchronised(int error) {
  return error == EINVAL || error == ENOTSUP;
}

class HostWriter : public platform::ByteWriter {
 public:
  explicit HostWriter(Descriptor file) : file_(std::move(file)) {}

  Failure write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t written = ::write(file_.get(), bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return failureOf(errno);
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return Failure::None;
  }

  Failure close() override {
    const bool kept = ::fsync(file_.get()) == 0 || cannotBeSynchronised(errno);
    const Failure lost = kept ? Failure::None : failureOf(errno);
    const Failure closed = file_.close();
    return lost != Failure::None ? lost : closed;
  }

 private:
  Descriptor file_;
};

Failure openWriter(const std::string& path, int ifPresent,
                   std::unique_ptr<platform::ByteWriter>& file) {
  constexpr mode_t everyoneAsUmaskAllows = 0666;
  Descriptor opened(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | ifPresent,
                           everyoneAsUmaskAllows));
  // Writing creates the file, so what is not found is its folder.
  if (opened.get() < 0) return errno == ENOENT ? Failure::PathNotFound : failureOf(errno);
  file = std::make_unique<HostWriter>(std::move(opened));
  return Failure::None;
}

}  // namespace

std::string HostFiles::Dir(const std::string& path) {
  namespace fs = std::filesystem;
  struct stat wanted {};
  if (::stat(path.c_str(), &wanted) != 0 || S_ISDIR(wanted.st_mode)) return {};
  const fs::path asked(path);
  std::error_code error;
  const fs::path folder = asked.has_parent_path() ? asked.parent_path() : ".";
  std::vector<fs::path> names;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(entry->path().filename());
    if (names.back() == asked.filename()) return names.back();
  }
  // A folder that may be entered but not listed can't tell its own spelling.
  if (error) return asked.filename();
  // A file system that ignores case has found the file under another spelling.
  for (const fs::path& name : names) {
    struct stat found {};
    if (::stat((folder / name).c_str(), &found) == 0 && found.st_ino == wanted.st_ino &&
        found.st_dev == wanted.st_dev) {
      return name;
    }
  }
  return {};
}

Failure HostFiles::openForReading(const std::string& path,
                                  std::unique_ptr<platform::ByteReader>& file) {
  Descriptor opened(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (opened.get() < 0) return failureOf(errno);
  struct stat found {};
  if (::fstat(opened.get(), &found) != 0) return failureOf(errno);
  if (!S_ISREG(found.st_mode)) return Failure::PathFileAccess;
  file = std::make_unique<HostReader>(std::move(opened));
  return Failure::None;
}

Failure HostFiles::openForWriting(const std::string& path,
                                  std::unique_ptr<platform::ByteWriter>& file) {
  return openWriter(path, O_TRUNC, file);
}

Failure HostFiles::createForWriting(const std::string& path,
                                    std::unique_ptr<platform::ByteWriter>& file) {
  const Failure failure = openWriter(path, O_EXCL, file);
  std::error_code error;
  const bool folder = failure == Failure::FileExists && std::filesystem::is_directory(path, error);
  return folder ? Failure::PathFileAccess : failure;
}

Failure HostFiles::remove(const std::string& path) {
  return ::unlink(path.c_str()) == 0 ? Failure::None : failureOf(errno);
}

}  // namespace monitra::host
