#include "store/text_writer.h"

namespace monitra::store {

using platform::Failure;

Failure TextWriter::writeLine(std::string_view line) {
  constexpr std::size_t blockSize = 65536;
  block_ += line;
  block_ += "\r\n";
  return block_.size() < blockSize ? Failure::None : flush();
}

Failure TextWriter::close() {
  const Failure flushed = flush();
  const Failure closed = file_->close();
  return flushed != Failure::None ? flushed : closed;
}

Failure TextWriter::flush() {
  if (block_.empty()) return Failure::None;
  const Failure failure = file_->write(block_);
  block_.clear();
  return failure;
}

}  // namespace monitra::store
