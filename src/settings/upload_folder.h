#pragma once

#include <ctime>
#include <functional>
#include <string>

#include "platform/upload_archive.h"

namespace monitra::settings {

/// Uploads in a folder: for each a Setup file named by its moment, as "2026-11-24_07-05-32.pwm",
/// and in "lista.json" their order, ports and boards. The oldest go first; other files are left
/// alone. Several programs may keep theirs in it at the same time.
class UploadFolder : public platform::UploadArchive {
 public:
  using Clock = std::function<std::time_t()>;
  static constexpr std::size_t most = 500;

  /// In an empty folder name nothing can be kept. The clock gives the moment of an upload.
  explicit UploadFolder(
      std::string folder, Clock clock = [] { return std::time(nullptr); });

  bool keep(std::string_view content, const std::string& port, const std::string& board) override;
  std::vector<platform::KeptUpload> list() override;

 private:
  std::string folder_;
  Clock clock_;
};

/// The folder for the uploads of a program: below "monitra" in $XDG_DATA_HOME or in .local/share of
/// the user's home; empty for a user without a home.
std::string uploadFolder(const std::string& application);

}  // namespace monitra::settings
