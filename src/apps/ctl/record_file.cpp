#include "apps/ctl/record_file.h"

#include <filesystem>
#include <system_error>

namespace monitra::ctl {

namespace fs = std::filesystem;
using platform::Failure;

std::string RecordFile::prepare(const std::string& setupFile) {
  std::error_code error;
  if (fs::equivalent(path_, setupFile, error)) {
    return "A --vcd fájlja maga a Setup fájl. Adjon meg másikat!";
  }
  const fs::file_type type = fs::status(path_, error).type();
  if (type == fs::file_type::character || type == fs::file_type::fifo) {
    device_.open(path_);
    return device_ ? std::string{} : text("nem írható. Adjon meg más helyet!");
  }
  isThere_ = type == fs::file_type::regular && replaces_;
  target_ = isThere_ ? fs::canonical(path_, error).string() : path_;
  std::unique_ptr<platform::ByteWriter> file;
  const std::string refusal = create(file);
  file.reset();
  return refusal.empty() ? removed("") : refusal;
}

std::string RecordFile::write(const std::string& record) {
  if (device_.is_open()) {
    device_ << record;
    device_.close();
    return device_ ? std::string{} : text("írása félbemaradt.");
  }
  std::unique_ptr<platform::ByteWriter> file;
  if (std::string refusal = create(file); !refusal.empty()) return refusal;
  const Failure written = file->write(record);
  std::error_code error;
  if (file->close() == Failure::None && written == Failure::None) {
    if (isThere_) fs::rename(written_, target_, error);
    if (!error) return {};
  }
  return removed(isThere_ ? "írása félbemaradt, a régi tartalma megmaradt."
                          : "írása félbemaradt, ezért a program törölte.");
}

/// Removes what was begun; gives this, or that it is left.
std::string RecordFile::removed(const std::string& what) const {
  std::error_code error;
  fs::remove(written_, error);
  if (error) return text("írása félbemaradt. Törölje ezt: " + written_);
  return what.empty() ? what : text(what);
}

/// Gives why the file can't be; empty if it is made.
std::string RecordFile::create(std::unique_ptr<platform::ByteWriter>& file) {
  written_ = isThere_ ? target_ + ".1" : target_;
  Failure failure = files_.createForWriting(written_, file);
  for (int n = 2; isThere_ && failure == Failure::FileExists; ++n) {
    written_ = target_ + "." + std::to_string(n);
    failure = files_.createForWriting(written_, file);
  }
  if (failure == Failure::None) return {};
  return text(failure == Failure::FileExists && !replaces_
                  ? "már létezik. Adjon meg másikat, vagy írja felül a --force kapcsolóval!"
                  : "nem írható. Adjon meg más helyet!");
}

std::string RecordFile::text(const std::string& what) const {
  return "A(z) '" + path_ + "' fájl " + what;
}

}  // namespace monitra::ctl
