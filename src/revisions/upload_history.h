#pragma once

#include <string>
#include <vector>

#include "platform/upload_archive.h"
#include "revisions/read_beside.h"

namespace monitra::revisions {

/// What has gone into controllers, by this program's uploads, and what changed from one to the
/// next.
class UploadHistory {
 public:
  struct Entry {
    platform::KeptUpload kept;
    ReadFile read;
    std::string changes;  ///< since the readable one before; words where there is none
  };

  /// Both must outlive it.
  UploadHistory(platform::UploadArchive& archive, const FileSource& source)
      : archive_(archive), source_(source) {}

  /// Keeps the Setup that has just gone out. False if it can't be kept.
  bool keep(const timing::SetupPanel& panel, const timing::Kozos& kozos, const std::string& port,
            const std::string& board);

  /// The newest first. A file is read once.
  const std::vector<Entry>& refresh();
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  platform::UploadArchive& archive_;
  FileSource source_;
  std::vector<Entry> entries_;
};

/// An entry for the clipboard: when, where, what changed, and each field in a line.
std::string entryText(const UploadHistory::Entry& entry);

}  // namespace monitra::revisions
