#include "revisions/upload_history.h"

#include <algorithm>
#include <utility>

#include "store/failure_texts.h"
#include "store/setup_files.h"

namespace monitra::revisions {

using platform::Failure;

bool UploadHistory::keep(const timing::SetupPanel& panel, const timing::Kozos& kozos,
                         const std::string& port, const std::string& board) {
  std::vector<std::string> records;
  for (int record = 1; record <= store::pwmRecords; ++record) {
    records.push_back(store::pwmRecord(record, panel, kozos));
  }
  if (!archive_.keep(store::pwmLines(records, source_.codePage), port, board)) return false;
  ++keptNow_;
  return true;
}

void UploadHistory::refresh() {
  std::vector<Upload> fresh;
  for (const platform::KeptUpload& kept : archive_.list()) {
    const auto known = std::ranges::find(
        uploads_, kept.path, [](const Upload& upload) -> auto& { return upload.kept.path; });
    fresh.push_back({kept, known == uploads_.end() ? std::nullopt : std::move(known->file)});
  }
  std::ranges::reverse(fresh);
  uploads_ = std::move(fresh);
}

const ReadFile& UploadHistory::read(std::size_t n) {
  std::optional<ReadFile>& file = uploads_[n].file;
  if (!file) file = readBeside(source_, uploads_[n].kept.path);
  return *file;
}

std::string UploadHistory::changes(std::size_t n) {
  const ReadFile& file = read(n);
  if (file.failure != Failure::None) {
    return "Nem olvasható be: " + store::failureMeaning(file.failure);
  }
  for (std::size_t before = n + 1; before < uploads_.size(); ++before) {
    if (read(before).failure != Failure::None) continue;
    const std::string changes = changesText(read(before).fields, file.fields);
    return changes.empty() ? "Ugyanaz, mint az előző." : changes;
  }
  return "Az első.";
}

std::string UploadHistory::text(std::size_t n) {
  const platform::KeptUpload& kept = uploads_[n].kept;
  std::string text = kept.when;
  for (const std::string& part : {kept.port, kept.board}) {
    if (!part.empty()) text += ", " + part;
  }
  text += "\n" + changes(n) + "\n";
  for (const FieldIndex field : allFields()) {
    text += std::string(fieldLabel(field)) + ": " + shownText(read(n).fields, field) + "\n";
  }
  return text;
}

}  // namespace monitra::revisions
