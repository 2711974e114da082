#include "store/file_operations.h"

#include "timing/numbers.h"

namespace monitra::store {

using platform::Failure;
namespace box_style = platform::box_style;

bool exists(const FileOutside& outside) {
  const std::string& title = outside.Fileablak.FileTitle;
  return !title.empty() && outside.files.Dir(outside.Fileablak.FileName) == title;
}

void reportFailure(platform::MessageBox& box, Failure failure, const std::string& general) {
  switch (failure) {
    case Failure::None:
    case Failure::Cancel:
      return;
    case Failure::PathFileAccess:
      box.MsgBox("Drive Problem ! No Write in Drive.", box_style::okOnly);
      return;
    default:
      box.MsgBox(general + timing::numberText(static_cast<int>(failure)), box_style::okOnly);
  }
}

}  // namespace monitra::store
