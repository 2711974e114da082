#include "store/setup_files.h"

#include <memory>

#include "store/pwm_format.h"
#include "store/text_reader.h"
#include "store/window_title.h"

namespace monitra::store {

using platform::BoxAnswer;
using platform::Failure;
namespace box_style = platform::box_style;

SetupFiles::SetupFiles(const FileOutside& outside, timing::Kozos& kozos, timing::SetupPanel& panel,
                       timing::Editions& editions, controls::Form& form)
    : outside_(outside), kozos_(kozos), panel_(panel), editions_(editions), form_(form) {}

Failure SetupFiles::MFSetMent_Click() {
  kozos_.Modositott = 0;
  prepareDialog();
  Failure failure = outside_.Fileablak.ShowSave();
  if (failure == Failure::None) {
    if (exists(outside_) &&
        outside_.box.MsgBox("'" + outside_.Fileablak.FileTitle + "' már létezik!\r\nFelülírjam?",
                            box_style::exclamation | box_style::yesNo) == BoxAnswer::No) {
      return Failure::Cancel;
    }
    failure = save();
  }
  report(failure);
  return failure;
}

Failure SetupFiles::save() {
  const std::string path = outside_.Fileablak.FileName;
  const bool again = keptOf_ == path && !outside_.files.Dir(keptCopy_).empty();
  if (!again) keptCopy_.clear();
  // After a save that has failed the file holds less than the copy.
  if (!again) {
    const Failure failure = keepCopy(outside_.files, path, keptCopy_);
    if (failure != Failure::None && failure != Failure::FileNotFound) return failure;
  }
  bool emptied = again;
  const Failure failure = write(path, emptied);
  const bool torn = failure != Failure::None && emptied;
  keptOf_ = torn ? path : std::string{};
  if (torn || keptCopy_.empty()) return failure;
  if (outside_.files.remove(keptCopy_) == Failure::None) keptCopy_.clear();
  return failure;
}

Failure SetupFiles::write(const std::string& path, bool& emptied) const {
  std::unique_ptr<platform::ByteWriter> file;
  const Failure opened = outside_.files.openForWriting(path, file);
  if (opened != Failure::None) return opened;
  emptied = true;
  const PwmTexts texts = pwmTexts(panel_, kozos_);
  const Failure written = file->write(pwmLines(texts.records, outside_.codePage));
  if (written != Failure::None) return written;
  const Failure closed = file->close();
  return texts.failure != Failure::None ? texts.failure : closed;
}

OpenResult SetupFiles::MFSetNyit_Click() {
  OpenResult result;
  prepareDialog();
  result.failure = outside_.Fileablak.ShowOpen();
  if (result.failure == Failure::None) {
    if (!exists(outside_)) {
      outside_.box.MsgBox(
          "'" + outside_.Fileablak.FileTitle + "' nem létezik!\r\nAdjon meg létező File nevet!",
          box_style::critical | box_style::okOnly);
      result.failure = Failure::FileNotFound;
      return result;
    }
    kozos_.FirmwareNev.clear();
    form_.Caption = windowTitle(outside_.program, outside_.Fileablak.FileTitle);
    result = read();
  }
  if (result.failure != Failure::None) {
    report(result.failure);
    return result;
  }
  editions_.KiadasValaszt();
  kozos_.Modositott = 0;
  return result;
}

OpenResult SetupFiles::read() {
  OpenResult result;
  std::unique_ptr<platform::ByteReader> file;
  result.failure = outside_.files.openForReading(outside_.Fileablak.FileName, file);
  if (result.failure != Failure::None) return result;
  TextReader reader(std::move(file));
  std::string bytes;
  for (int record = 1; record <= pwmRecords; ++record) {
    result.failure =
        record <= pwmWholeLineRecords ? reader.readLine(bytes) : reader.readField(bytes);
    if (result.failure != Failure::None) return result;
    const std::string text = outside_.codePage.toUtf8(bytes);
    if (applyPwmRecord(record, text, panel_, kozos_)) ++result.adjusted;
    result.records.push_back(text);
  }
  return result;
}

void SetupFiles::prepareDialog() {
  outside_.Fileablak.Filter = "Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.*";
  outside_.Fileablak.FileName = "Modositott.pwm";
}

void SetupFiles::report(Failure failure) {
  if (failure == Failure::EndOfFile) return;
  reportFailure(outside_.box, failure, "Eror in File funktions ! Error Code:");
}

}  // namespace monitra::store
