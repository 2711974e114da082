#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace monitra::store {

/// A text file written line by line, as bytes. Lines end with CR LF. They go out in larger blocks,
/// so a failure may be told some lines late; what was written ahead of it is in the file once it
/// has been closed.
class TextWriter {
 public:
  explicit TextWriter(std::unique_ptr<platform::ByteWriter> file) : file_(std::move(file)) {}

  platform::Failure writeLine(std::string_view line);

  /// To be called at the end, also after a failure of something else.
  platform::Failure close();

 private:
  platform::Failure flush();

  std::unique_ptr<platform::ByteWriter> file_;
  std::string block_;
};

}  // namespace monitra::store
