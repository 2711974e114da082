#pragma once

#include <memory>

#include "controls/controls.h"
#include "firmware/parameter_block.h"
#include "store/file_operations.h"
#include "store/text_reader.h"
#include "store/text_writer.h"
#include "timing/editions.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"
#include "timing/timing_fields.h"

namespace monitra::firmware {

/// How a reading ended, beyond the boxes that it showed.
struct ReadResult {
  platform::Failure failure = platform::Failure::None;
  int adjusted = 0;  ///< values outside their field's range, which took the nearest limit
};

/// Reads the parameter block of a firmware file into the Setup, and writes a copy of that file
/// with the present Setup in it. A record of the block is checked as a whole before any of it is
/// used. All that the arguments refer to must outlive the object.
class FirmwareFiles {
 public:
  FirmwareFiles(const store::FileOutside& outside, timing::Kozos& kozos, timing::SetupPanel& panel,
                timing::TimingFields& fields, timing::Editions& editions, controls::Form& form);

  /// Failure::FileNotFound also stands for the name of no existing file.
  ReadResult FirmwareNyit();

  /// Never touches the source or any other file that exists: Failure::FileExists. After another
  /// failure the target holds what was written so far. Failure::FileNotFound also stands for no
  /// file having been read.
  platform::Failure FirmwareMent();

 private:
  void prepareDialog(const char* name);
  ReadResult chooseAndRead();
  platform::Failure openSource(std::unique_ptr<store::TextReader>& source);
  platform::Failure readVersion();
  ReadResult readBlock();
  int applyRecord(int record, const RecordBytes& bytes);
  bool applyTimingField(int i, int value);
  bool applyPath(int value);
  platform::Failure writeTarget(std::unique_ptr<platform::ByteWriter> file);
  platform::Failure copyPatched(store::TextWriter& target);
  platform::Failure refuseExisting();

  store::FileOutside outside_;
  timing::Kozos& kozos_;
  timing::SetupPanel& panel_;
  timing::TimingFields& fields_;
  timing::Editions& editions_;
  controls::Form& form_;
};

}  // namespace monitra::firmware
