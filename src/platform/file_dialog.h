#pragma once

#include <string>

#include "platform/failure.h"

namespace monitra::platform {

/// Lets the user choose a file name. The caller sets Filter and FileName before showing it; on
/// success FileName is the full path and FileTitle the name without its folder. Nothing is asked
/// about the file: it need not exist, and it may.
class FileDialog {
 public:
  virtual ~FileDialog() = default;

  /// Failure::None, or Failure::Cancel with the fields as they were.
  virtual Failure ShowOpen() = 0;
  virtual Failure ShowSave() = 0;

  /// Pairs of description and pattern, all separated by "|".
  std::string Filter;
  std::string FileName;
  std::string FileTitle;

 protected:
  void choose(const std::string& path) {
    FileName = path;
    FileTitle = path.substr(path.find_last_of('/') + 1);
  }
};

}  // namespace monitra::platform
