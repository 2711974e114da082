#include "firmware/firmware_files.h"

#include <array>
#include <optional>

#include "store/window_title.h"
#include "timing/numbers.h"

namespace monitra::firmware {

using platform::Failure;
using store::TextReader;
using timing::Kozos;
namespace box_style = platform::box_style;

namespace {

constexpr int titleBlanks = 3;
constexpr std::array versionDigits{&Kozos::VerFo, &Kozos::VerAl, &Kozos::VerRev};

/// Reads up to the first line with this address; Failure::EndOfFile if there is none.
Failure readUntil(TextReader& source, std::string_view address, std::string& line) {
  Failure failure = Failure::None;
  do {
    failure = source.readField(line);
  } while (failure == Failure::None && !hasAddress(line, address));
  return failure;
}

}  // namespace

FirmwareFiles::FirmwareFiles(const store::FileOutside& outside, Kozos& kozos,
                             timing::SetupPanel& panel, timing::TimingFields& fields,
                             timing::Editions& editions, controls::Form& form)
    : outside_(outside),
      kozos_(kozos),
      panel_(panel),
      fields_(fields),
      editions_(editions),
      form_(form) {}

ReadResult FirmwareFiles::FirmwareNyit() {
  const bool mark = panel_.MBTallando.Checked;
  panel_.MBTallando.Checked = false;
  const ReadResult result = chooseAndRead();
  panel_.MBTallando.Checked = mark;
  return result;
}

ReadResult FirmwareFiles::chooseAndRead() {
  ReadResult result;
  prepareDialog("");
  result.failure = outside_.Fileablak.ShowOpen();
  if (result.failure == Failure::None) {
    if (!store::exists(outside_)) {
      outside_.box.MsgBox("'" + outside_.Fileablak.FileTitle + "' nem található !",
                          box_style::critical | box_style::okOnly);
      result.failure = Failure::FileNotFound;
      return result;
    }
    kozos_.FirmwareNev = outside_.Fileablak.FileTitle;
    kozos_.FirmwareUtvonal = outside_.Fileablak.FileName;
    panel_.Funkcio.ListIndex = 0;
    result.failure = readVersion();
  }
  if (result.failure == Failure::None) {
    editions_.KiadasValaszt();
    panel_.Verz.Caption = "V" + kozos_.VerFo + "." + kozos_.VerAl + "." + kozos_.VerRev;
    result = readBlock();
  }
  if (result.failure == Failure::None) {
    form_.Caption = store::windowTitle(outside_.program, kozos_.FirmwareNev, titleBlanks);
  }
  store::reportFailure(outside_.box, result.failure, "Error in File funktions ! Error Code:");
  return result;
}

Failure FirmwareFiles::readVersion() {
  std::unique_ptr<TextReader> source;
  Failure failure = openSource(source);
  if (failure != Failure::None) return failure;
  std::string line;
  failure = readUntil(*source, blockAddresses[versionRecord], line);
  if (failure != Failure::None) return failure;
  const std::optional<RecordBytes> bytes = recordBytes(line);
  if (!bytes) return Failure::NotANumber;
  for (int word = 0; word < wordsPerRecord; ++word) {
    const BlockByte& entry = blockByte(versionRecord, word);
    if (entry.holds != Holds::VersionDigit) continue;
    const char character = static_cast<char>((*bytes)[static_cast<std::size_t>(word)]);
    kozos_.*versionDigits[static_cast<std::size_t>(entry.which)] =
        outside_.codePage.toUtf8({&character, 1});
  }
  return Failure::None;
}

ReadResult FirmwareFiles::readBlock() {
  ReadResult result;
  std::unique_ptr<TextReader> source;
  result.failure = openSource(source);
  std::string line;
  for (int record = 0; record < blockRecords && result.failure == Failure::None; ++record) {
    result.failure =
        record == 0 ? readUntil(*source, blockAddresses[0], line) : source->readField(line);
    if (result.failure != Failure::None) break;
    if (const std::optional<RecordBytes> bytes = recordBytes(line)) {
      result.adjusted += applyRecord(record, *bytes);
    } else {
      result.failure = Failure::NotANumber;
    }
  }
  return result;
}

int FirmwareFiles::applyRecord(int record, const RecordBytes& bytes) {
  int adjusted = 0;
  int pathHigh = 0;
  for (int word = 0; word < wordsPerRecord; ++word) {
    const BlockByte& entry = blockByte(record, word);
    const int byte = bytes[static_cast<std::size_t>(word)];
    switch (entry.holds) {
      case Holds::LimitSwitches:
        panel_.Vegallas.Caption =
            byte > 128 ? "Végállások állapota: felvett" : "Végálások állapota: üres";
        break;
      case Holds::TimingField:
        if (!applyTimingField(entry.which, byte)) ++adjusted;
        break;
      case Holds::Mode:
        panel_.Funkcio.ListIndex = byte;
        if (byte > panel_.Funkcio.ListIndex.max()) ++adjusted;
        break;
      case Holds::PathHigh:
        pathHigh = byte;
        break;
      case Holds::PathLow:
        if (!applyPath(pathHigh * 256 + byte)) ++adjusted;
        break;
      case Holds::Tolerance:
        panel_.Turesfolle.Value = byte;
        break;
      case Holds::VersionDigit:
      case Holds::Unknown:
        break;
    }
  }
  return adjusted;
}

bool FirmwareFiles::applyTimingField(int i, int value) {
  panel_.FolLe[i].Value = value;
  if (panel_.FolLe[i].Value == value) return true;
  // The limit is shown also where the value stood there already, under another spelling.
  fields_.FolLe_Change(i);
  return false;
}

bool FirmwareFiles::applyPath(int value) {
  panel_.Utfolle.Value = value;
  if (panel_.Utfolle.Value == value) return true;
  panel_.Ut.Text = timing::decimalText(panel_.Utfolle.Value);
  return false;
}

Failure FirmwareFiles::FirmwareMent() {
  if (kozos_.FirmwareNev.empty()) {
    outside_.box.MsgBox("Nincs megnyitva Firmware (hex) file!\r\nMentés előtt nyisson meg egyet!",
                        box_style::critical | box_style::okOnly);
    return Failure::FileNotFound;
  }
  prepareDialog("Modositott.hex");
  Failure failure = outside_.Fileablak.ShowSave();
  if (failure == Failure::None) {
    // Creating also finds what the name alone doesn't: the same file under another spelling, a
    // link to nowhere, a file that has come up since.
    std::unique_ptr<platform::ByteWriter> target;
    failure = store::exists(outside_)
                  ? Failure::FileExists
                  : outside_.files.createForWriting(outside_.Fileablak.FileName, target);
    if (failure == Failure::FileExists) return refuseExisting();
    kozos_.FirmwareCel = outside_.Fileablak.FileTitle;
    form_.Caption = store::windowTitle(outside_.program, kozos_.FirmwareCel, titleBlanks);
    if (failure == Failure::None) failure = writeTarget(std::move(target));
  }
  store::reportFailure(outside_.box, failure, "Eror in File funktions ! Error Code:");
  return failure;
}

Failure FirmwareFiles::refuseExisting() {
  outside_.box.MsgBox("'" + outside_.Fileablak.FileTitle + "' már létezik!\r\nMentse más néven!",
                      box_style::critical | box_style::okOnly);
  return Failure::FileExists;
}

Failure FirmwareFiles::writeTarget(std::unique_ptr<platform::ByteWriter> file) {
  store::TextWriter target(std::move(file));
  const Failure copied = copyPatched(target);
  const Failure closed = target.close();
  return copied != Failure::None ? copied : closed;
}

Failure FirmwareFiles::copyPatched(store::TextWriter& target) {
  std::unique_ptr<TextReader> source;
  Failure failure = openSource(source);
  const timing::Setup setup = panel_.spinValues();
  std::string line;
  int record = 0;  // of the block, the next one to come
  while (failure == Failure::None) {
    failure = source->readField(line);
    if (failure != Failure::None) break;
    const bool ofBlock = record == 0 ? hasAddress(line, blockAddresses[0]) : record < blockRecords;
    if (ofBlock) {
      const std::optional<std::string> patched = patchedRecord(record++, line, setup);
      if (!patched) return Failure::NotANumber;
      line = *patched;
    }
    failure = target.writeLine(line);
  }
  const bool complete = failure == Failure::EndOfFile && record == blockRecords;
  return complete ? Failure::None : failure;
}

void FirmwareFiles::prepareDialog(const char* name) {
  outside_.Fileablak.Filter = "Firmware File (*.hex)|*.hex|Minden File (*.*)|*.*";
  outside_.Fileablak.FileName = name;
}

Failure FirmwareFiles::openSource(std::unique_ptr<TextReader>& source) {
  std::unique_ptr<platform::ByteReader> file;
  const Failure failure = outside_.files.openForReading(kozos_.FirmwareUtvonal, file);
  if (failure == Failure::None)
    source = std::make_unique<TextReader>(std::move(file), longestImageLine);
  return failure;
}

}  // namespace monitra::firmware
