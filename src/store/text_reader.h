#pragma once

#include <memory>
#include <string>

#include "platform/files.h"

namespace monitra::store {

/// A text file read line by line or field by field, as bytes. A line ends with CR LF, LF or CR,
/// and the last one also with the file. A text longer than the given number of bytes is no line of
/// a text file: Failure::LineTooLong.
class TextReader {
 public:
  explicit TextReader(std::unique_ptr<platform::ByteReader> file, std::size_t longest = 65536)
      : file_(std::move(file)), longest_(longest) {}

  /// The rest of the line. Failure::EndOfFile if nothing is left, not even an empty line.
  platform::Failure readLine(std::string& line);

  /// Blanks are skipped; the field goes up to the next comma or to the end of the line.
  platform::Failure readField(std::string& field);

 private:
  platform::Failure readUntil(std::string& text, bool commaEnds, bool skipBlanks);
  /// Goes past the character that ends a line or field, and past the other half of CR LF.
  platform::Failure endLine();
  /// Makes sure that there is a next byte.
  platform::Failure fill();

  std::unique_ptr<platform::ByteReader> file_;
  std::size_t longest_;
  std::string chunk_;
  std::size_t at_ = 0;
};

}  // namespace monitra::store
