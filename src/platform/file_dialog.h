#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/failure.h"

namespace monitra::platform {

/// Lets the user choose a file name. The caller sets Filter and FileName before showing it; on
/// success FileName is the full path and FileTitle the name without its folder. Nothing is asked
/// about the file: it need not exist, and it may.
class FileDialog {
 public:
  virtual ~FileDialog() = default;

  /// Failure::None, or Failure::Cancel with the fields as they were.
  Failure ShowOpen() { return takeGiven() ? Failure::None : askOpen(); }
  Failure ShowSave() { return takeGiven() ? Failure::None : askSave(); }

  /// Pairs of description and pattern, all separated by "|".
  std::string Filter;
  std::string FileName;
  std::string FileTitle;

 protected:
  void choose(const std::string& path) {
    FileName = path;
    FileTitle = path.substr(path.find_last_of('/') + 1);
  }

 private:
  friend class GivenName;

  /// Show the dialog.
  virtual Failure askOpen() = 0;
  virtual Failure askSave() = 0;

  bool takeGiven() {
    if (!given_) return false;
    choose(*std::exchange(given_, std::nullopt));
    return true;
  }

  std::optional<std::string> given_;
};

/// No dialog comes up here: a name that isn't given is none.
class NoDialog : public FileDialog {
 private:
  Failure askOpen() override { return Failure::Cancel; }
  Failure askSave() override { return Failure::Cancel; }
};

/// Stands for the user's choice in the next dialog, which then doesn't come up. A dialog that comes
/// after the object's end is shown again.
class GivenName {
 public:
  /// The full path of the chosen file. The dialog must outlive the object.
  GivenName(FileDialog& dialog, std::string path) : dialog_(dialog) {
    dialog_.given_ = std::move(path);
  }
  GivenName(const GivenName&) = delete;
  GivenName& operator=(const GivenName&) = delete;
  ~GivenName() { dialog_.given_.reset(); }

 private:
  FileDialog& dialog_;
};

}  // namespace monitra::platform
