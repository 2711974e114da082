#pragma once

#include <string>

#include "controls/controls.h"
#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program_identity.h"
#include "timing/editions.h"
#include "timing/kozos.h"
#include "timing/setup_panel.h"

namespace monitra::store {

/// How an opening ended, beyond the boxes that it showed.
struct OpenResult {
  platform::Failure failure = platform::Failure::None;
  int records = 0;   ///< records applied, up to pwmRecords
  int adjusted = 0;  ///< of those, records with a value outside their field's range
};

/// Saves and opens Setup files. All that the fields refer to must outlive the object.
class SetupFiles {
 public:
  struct Outside {
    platform::FileDialog& Fileablak;
    platform::Files& files;
    const platform::CodePage& codePage;
    platform::MessageBox& box;
    const platform::ProgramIdentity& program;
  };

  SetupFiles(const Outside& outside, timing::Kozos& kozos, timing::SetupPanel& panel,
             timing::Editions& editions, controls::Form& form);

  /// Failure::Cancel also stands for the answer No to the question whether to overwrite.
  platform::Failure MFSetMent_Click();

  /// Failure::FileNotFound stands for the name of no existing file.
  OpenResult MFSetNyit_Click();

 private:
  void prepareDialog();
  bool exists();
  platform::Failure write();
  OpenResult read();
  void report(platform::Failure failure);

  Outside outside_;
  timing::Kozos& kozos_;
  timing::SetupPanel& panel_;
  timing::Editions& editions_;
  controls::Form& form_;
};

}  // namespace monitra::store
