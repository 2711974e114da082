#include "store/text_reader.h"

namespace monitra::store {

using platform::Failure;

Failure TextReader::readLine(std::string& line) {
  return readUntil(line, false, false);
}

Failure TextReader::readField(std::string& field) {
  return readUntil(field, true, true);
}

Failure TextReader::readUntil(std::string& text, bool commaEnds, bool skipBlanks) {
  constexpr std::size_t longest = 65536;
  text.clear();
  Failure failure = fill();
  if (failure != Failure::None) return failure;
  for (bool skipping = skipBlanks; failure == Failure::None; failure = fill()) {
    const char c = chunk_[at_++];
    if (c == '\n' || (commaEnds && c == ',')) return Failure::None;
    if (c == '\r') {
      failure = fill();
      if (failure == Failure::None && chunk_[at_] == '\n') ++at_;
      break;
    }
    if (skipping && c == ' ') continue;
    skipping = false;
    if (text.size() == longest) return Failure::LineTooLong;
    text += c;
  }
  return failure == Failure::EndOfFile ? Failure::None : failure;
}

Failure TextReader::fill() {
  if (at_ < chunk_.size()) return Failure::None;
  at_ = 0;
  const Failure failure = file_->read(chunk_);
  if (failure != Failure::None) return failure;
  return chunk_.empty() ? Failure::EndOfFile : Failure::None;
}

}  // namespace monitra::store
