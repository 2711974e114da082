#pragma once

#include <string>
#include <string_view>

/// Reading and replacing a small file as a whole.
namespace monitra::settings {

/// Gives the file's content, and 0 or the errno of the failure: EINVAL for what is no regular file,
/// EFBIG for one of more than 1 MiB.
int readSmallFile(const std::string& path, std::string& content);

/// Puts a new file in the place of the one at the path, or of none. Where that fails the old one
/// stays as it was and nothing is left beside it.
bool replaceFile(const std::string& path, std::string_view content);

/// For as long as it lives no other program that asks for it has this lock. One that keeps it for
/// seconds, or a file system without locks, is not waited for.
class FolderLock {
 public:
  explicit FolderLock(const std::string& folder);
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;
  ~FolderLock();

 private:
  int descriptor_;
};

}  // namespace monitra::settings
