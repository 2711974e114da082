#include "store/text_reader.h"

#include <algorithm>

namespace monitra::store {

using platform::Failure;

Failure TextReader::readLine(std::string& line) {
  return readUntil(line, false, false);
}

Failure TextReader::readField(std::string& field) {
  return readUntil(field, true, true);
}

Failure TextReader::readUntil(std::string& text, bool commaEnds, bool skipBlanks) {
  const auto isEnd = [commaEnds](char c) {
    return c == '\n' || c == '\r' || (commaEnds && c == ',');
  };
  text.clear();
  Failure failure = fill();
  if (failure != Failure::None) return failure;
  for (bool skipping = skipBlanks; failure == Failure::None; failure = fill()) {
    if (skipping) {
      at_ = std::min(chunk_.find_first_not_of(' ', at_), chunk_.size());
      if (at_ == chunk_.size()) continue;
      skipping = false;
    }
    const auto begin = chunk_.begin() + static_cast<std::ptrdiff_t>(at_);
    const auto end = std::find_if(begin, chunk_.end(), isEnd);
    if (text.size() + static_cast<std::size_t>(end - begin) > longest_) return Failure::LineTooLong;
    text.append(begin, end);
    at_ = static_cast<std::size_t>(end - chunk_.begin());
    if (end != chunk_.end()) return endLine();
  }
  return failure == Failure::EndOfFile ? Failure::None : failure;
}

Failure TextReader::endLine() {
  if (chunk_[at_++] != '\r') return Failure::None;
  const Failure failure = fill();
  if (failure == Failure::None && chunk_[at_] == '\n') ++at_;
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
