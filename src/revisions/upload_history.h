#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/upload_archive.h"
#include "revisions/read_beside.h"

namespace monitra::revisions {

/// What has gone into controllers, by this program's uploads, the newest first. A file is read
/// once, when it is first asked for.
class UploadHistory {
 public:
  /// Both must outlive it.
  UploadHistory(platform::UploadArchive& archive, const FileSource& source)
      : archive_(archive), source_(source) {}

  /// Keeps the Setup that has just gone out. False if it can't be kept.
  bool keep(const timing::SetupPanel& panel, const timing::Kozos& kozos, const std::string& port,
            const std::string& board);

  /// How many this run has kept.
  long keptNow() const { return keptNow_; }

  /// Looks for what has come and gone.
  void refresh();

  std::size_t size() const { return uploads_.size(); }
  const platform::KeptUpload& kept(std::size_t n) const { return uploads_[n].kept; }

  /// What has changed since the one before that can be read; words where there is none.
  std::string changes(std::size_t n);

  /// For the clipboard: when, where, what changed, and each field in a line.
  std::string text(std::size_t n);

 private:
  struct Upload {
    platform::KeptUpload kept;
    std::optional<ReadFile> file;
  };

  const ReadFile& read(std::size_t n);

  platform::UploadArchive& archive_;
  FileSource source_;
  std::vector<Upload> uploads_;
  long keptNow_ = 0;
};

}  // namespace monitra::revisions
