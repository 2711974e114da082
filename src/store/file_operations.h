#pragma once

#include <string>

#include "platform/file_dialog.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program_identity.h"

/// What all operations on a file that the user chooses have in common.
namespace monitra::store {

/// What such an operation asks of the outside world.
struct FileOutside {
  platform::FileDialog& Fileablak;
  platform::Files& files;
  const platform::CodePage& codePage;
  platform::MessageBox& box;
  const platform::ProgramIdentity& program;
};

/// Whether the name chosen in the dialog is that of an existing file, letter for letter.
bool exists(const FileOutside& outside);

/// Copies a file to a fresh name beside it, "NAME~" or where that is taken "NAME~2" and so on, and
/// gives the copy's path. After a failure there is none, and the path is empty.
platform::Failure keepCopy(platform::Files& files, const std::string& path, std::string& copy);

/// Tells a failure in a box; the general text is the one ahead of the code of a failure that has
/// no words of its own. None and Cancel need no box.
void reportFailure(platform::MessageBox& box, platform::Failure failure,
                   const std::string& general);

}  // namespace monitra::store
