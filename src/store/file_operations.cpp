#include "store/file_operations.h"

#include <memory>

#include "timing/numbers.h"

namespace monitra::store {

using platform::Failure;
namespace box_style = platform::box_style;

namespace {

Failure copyAll(platform::ByteReader& from, platform::ByteWriter& to) {
  for (std::string chunk;;) {
    Failure failure = from.read(chunk);
    if (failure != Failure::None) return failure;
    if (chunk.empty()) return to.close();
    failure = to.write(chunk);
    if (failure != Failure::None) return failure;
  }
}

}  // namespace

bool exists(const FileOutside& outside) {
  const std::string& title = outside.Fileablak.FileTitle;
  return !title.empty() && outside.files.Dir(outside.Fileablak.FileName) == title;
}

Failure keepCopy(platform::Files& files, const std::string& path, std::string& copy) {
  copy.clear();
  std::unique_ptr<platform::ByteReader> from;
  Failure failure = files.openForReading(path, from);
  if (failure != Failure::None) return failure;
  std::unique_ptr<platform::ByteWriter> to;
  std::string name = path + "~";
  constexpr int names = 100;
  for (int n = 2; n <= names; ++n) {
    failure = files.createForWriting(name, to);
    if (failure != Failure::FileExists) break;
    name = path + "~" + std::to_string(n);
  }
  if (failure != Failure::None) return failure;
  failure = copyAll(*from, *to);
  to.reset();
  if (failure == Failure::None) {
    copy = name;
  } else {
    files.remove(name);
  }
  return failure;
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
