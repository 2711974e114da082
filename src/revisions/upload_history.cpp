#include "revisions/upload_history.h"

#include <algorithm>
#include <utility>

#include "store/failure_texts.h"
#include "store/setup_files.h"

namespace monitra::revisions {

using platform::Failure;

namespace {

std::string changesSince(const UploadHistory::Entry* before, const UploadHistory::Entry& entry) {
  if (entry.read.failure != Failure::None) {
    return "Nem olvasható be: " + store::failureMeaning(entry.read.failure);
  }
  if (before == nullptr) return "Az első.";
  std::string changes = changesText(before->read.fields, entry.read.fields);
  return changes.empty() ? "Ugyanaz, mint az előző." : changes;
}

}  // namespace

bool UploadHistory::keep(const timing::SetupPanel& panel, const timing::Kozos& kozos,
                         const std::string& port, const std::string& board) {
  std::vector<std::string> records;
  for (int record = 1; record <= store::pwmRecords; ++record) {
    records.push_back(store::pwmRecord(record, panel, kozos));
  }
  return archive_.keep(store::pwmLines(records, source_.codePage), port, board);
}

const std::vector<UploadHistory::Entry>& UploadHistory::refresh() {
  std::vector<Entry> fresh;
  const Entry* before = nullptr;
  const std::vector<platform::KeptUpload> kept = archive_.list();
  fresh.reserve(kept.size());
  for (const platform::KeptUpload& upload : kept) {
    const auto known = std::ranges::find(
        entries_, upload.path, [](const Entry& entry) -> auto& { return entry.kept.path; });
    Entry& entry = fresh.emplace_back(known != entries_.end()
                                          ? std::move(*known)
                                          : Entry{upload, readBeside(source_, upload.path), {}});
    entry.changes = changesSince(before, entry);
    if (entry.read.failure == Failure::None) before = &entry;
  }
  std::ranges::reverse(fresh);
  entries_ = std::move(fresh);
  return entries_;
}

std::string entryText(const UploadHistory::Entry& entry) {
  std::string text = entry.kept.when;
  for (const std::string& part : {entry.kept.port, entry.kept.board}) {
    if (!part.empty()) text += ", " + part;
  }
  text += "\n" + entry.changes + "\n";
  for (const FieldIndex field : allFields()) {
    text += std::string(fieldLabel(field)) + ": " + shownText(entry.read.fields, field) + "\n";
  }
  return text;
}

}  // namespace monitra::revisions
