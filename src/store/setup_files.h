#pragma once

#include <string>
#include <vector>

#include "controls/controls.h"
#include "store/file_operations.h"
#include "timing/editions.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"

namespace monitra::store {

/// How an opening ended, beyond the boxes that it showed.
struct OpenResult {
  platform::Failure failure = platform::Failure::None;
  std::vector<std::string> records;  ///< the texts that were applied, up to pwmRecords
  int adjusted = 0;                  ///< of those, values outside their field's range
};

/// Saves and opens Setup files. All that the fields refer to must outlive the object.
class SetupFiles {
 public:
  SetupFiles(const FileOutside& outside, timing::Kozos& kozos, timing::SetupPanel& panel,
             timing::Editions& editions, controls::Form& form);

  /// Failure::Cancel also stands for the answer No to the question whether to overwrite. The
  /// content of an existing file is kept beside it for as long as the new one isn't all there;
  /// where it can't be kept nothing is written.
  platform::Failure MFSetMent_Click();

  /// Where the last save has left the content that the file had before: one that failed, or that
  /// could not remove it. Empty otherwise.
  const std::string& keptCopy() const { return keptCopy_; }

  /// Failure::FileNotFound stands for the name of no existing file.
  OpenResult MFSetNyit_Click();

 private:
  void prepareDialog();
  platform::Failure save();
  platform::Failure write(const std::string& path, bool& emptied) const;
  OpenResult read();
  void report(platform::Failure failure);

  FileOutside outside_;
  timing::Kozos& kozos_;
  timing::SetupPanel& panel_;
  timing::Editions& editions_;
  controls::Form& form_;
  std::string keptCopy_;
  std::string keptOf_;  ///< the file that a failed save has torn
};

}  // namespace monitra::store
