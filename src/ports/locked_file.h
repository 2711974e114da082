#pragma once

#include <filesystem>

namespace monitra::ports {

/// An open file that the process may hold locked against every other program that asks for the
/// same lock. It ends with the process, however that ends.
class LockedFile {
 public:
  LockedFile() = default;
  /// Opens for reading and writing; error() tells how that went.
  explicit LockedFile(const std::filesystem::path& path);
  /// Takes over a descriptor.
  LockedFile(int descriptor, int error) : descriptor_(descriptor), error_(error) {}
  LockedFile(LockedFile&& other) noexcept;
  LockedFile& operator=(LockedFile&& other) noexcept;
  ~LockedFile();

  /// False if another program has the lock.
  bool lock();

  /// The same, once the moment is over that a program takes to look whether it is free.
  bool lockSoon();

  bool isOpen() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }
  int error() const { return error_; }  ///< errno of the opening; 0 if it went well

 private:
  int descriptor_ = -1;
  int error_ = 0;
};

/// A file that is there for nothing but its lock, by whichever user it is made first.
LockedFile lockFile(const std::filesystem::path& path);

}  // namespace monitra::ports
