#include "wire/decoder.h"

#include <algorithm>
#include <utility>

#include "link/command_frames.h"
#include "link/upload.h"

namespace monitra::wire {

namespace {

constexpr std::size_t setupLength = std::tuple_size_v<link::SetupMessage>;
constexpr std::size_t frameLength = 3;
constexpr int bitsOfByte = 8;

bool isCommand(std::uint8_t byte) {
  return byte == link::FazisKi ||
         std::ranges::find(link::phaseLines, byte) != link::phaseLines.end();
}

/// Of a message of full length.
Message::Fault faultOf(const std::vector<std::uint8_t>& bytes) {
  if (bytes[1] != 0) return Message::Fault::WrongHead;
  const bool ends =
      bytes.size() == setupLength ? bytes.back() == link::SetupZaro : isCommand(bytes.back());
  return ends ? Message::Fault::None : Message::Fault::WrongEnd;
}

}  // namespace

std::size_t messageLength(std::uint8_t firstByte) {
  if (firstByte == link::SetupIndit) return setupLength;
  const bool isMotor = std::ranges::find(link::motors, firstByte) != link::motors.end();
  return isMotor ? frameLength : 0;
}

void Decoder::use(const SerialLines& lines) {
  if (lines == lines_) return;
  breakOff();
  lines_ = lines;
}

bool Decoder::take(Time time, Levels levels, Levels known) {
  const bool late = pass(time);
  const Levels changed = (levels ^ levels_) & known_ & known;
  const Levels rising = changed & levels;
  levels_ = levels;
  known_ = known;
  if ((changed & lines_.mask()) != 0) {
    const bool clockMoved = (changed & wireMask(lines_.clock)) != 0;
    edge(time, clockMoved);
    if (clockMoved) {
      lastClock_ = time;
      closing_ = false;
    }
    if ((rising & wireMask(lines_.clock)) != 0) takeBit((levels & wireMask(lines_.data)) != 0);
  }
  if ((rising & lines_.steps) != 0) breakOff();
  return late;
}

bool Decoder::isLate(Time now) const {
  return (lastClock_ && now - *lastClock_ > patience) || (lastEdge_ && now - *lastEdge_ > patience);
}

bool Decoder::pass(Time now) {
  if (!isLate(now)) return false;
  breakOff();
  return true;
}

void Decoder::finish() {
  breakOff();
}

/// A change of either line. While the clock of the last byte is high it still belongs to that.
void Decoder::edge(Time time, bool clockMoved) {
  const std::optional<Time> before = std::exchange(lastEdge_, time);
  if (closing_) {
    Message& owner = current_.bytes.empty() ? messages_.back() : current_;
    owner.end = time;
    owner.longestPause = std::max(owner.longestPause, time - *before);
    noteShort(*before, time, &owner);
    return;
  }
  // Of the data line's changes ahead of a first bit only the last one sets it up. The level ahead
  // of that may be short: the line may be put to idle right ahead of a message.
  if (part_.start && bitCount_ == 0 && current_.bytes.empty() && !clockMoved) {
    part_ = {};
    part_.start = time;
    part_.end = time;
    return;
  }
  if (before) noteShort(*before, time, nullptr);
  if (!part_.start) {
    part_.start = time;
  } else {
    part_.longestPause = std::max(part_.longestPause, time - *before);
  }
  part_.end = time;
}

void Decoder::noteShort(Time start, Time end, Message* owner) {
  if (end - start >= shortestPhase) return;
  if (owner == nullptr) {
    part_.shortPhases.push_back({start, end});
  } else {
    ++owner->shortPhases;
    shortPhases_.push_back({start, end});
  }
}

void Decoder::takeBit(bool bit) {
  if (bit) bits_ |= 1U << bitCount_;
  if (++bitCount_ < bitsOfByte) return;
  const auto byte = static_cast<std::uint8_t>(bits_);
  bits_ = 0;
  bitCount_ = 0;
  takeByte(byte);
}

void Decoder::takeByte(std::uint8_t byte) {
  const bool isHead = messageLength(byte) > 0;
  const bool inUnknown = !current_.bytes.empty() && messageLength(current_.bytes.front()) == 0;
  if (inUnknown && isHead) {
    current_.fault = Message::Fault::WrongHead;
    endMessage();
  }
  mergePart();
  current_.bytes.push_back(byte);
  closing_ = true;
  if (current_.bytes.size() != messageLength(current_.bytes.front())) return;
  current_.fault = faultOf(current_.bytes);
  if (current_.fault == Message::Fault::None) {
    current_.kind =
        current_.bytes.size() == setupLength ? Message::Kind::Setup : Message::Kind::Frame;
  }
  endMessage();
}

/// Makes the edges since the last byte part of the message.
void Decoder::mergePart() {
  if (!part_.start) return;
  if (current_.bytes.empty()) {
    current_.start = *part_.start;
  } else {
    current_.longestPause = std::max(current_.longestPause, *part_.start - current_.end);
  }
  current_.end = part_.end;
  current_.longestPause = std::max(current_.longestPause, part_.longestPause);
  current_.shortPhases += static_cast<int>(part_.shortPhases.size());
  shortPhases_.insert(shortPhases_.end(), part_.shortPhases.begin(), part_.shortPhases.end());
  part_ = {};
}

void Decoder::endMessage() {
  current_.lines = lines_;
  messages_.push_back(std::exchange(current_, {}));
}

void Decoder::breakOff() {
  if (!current_.bytes.empty()) {
    const bool isHead = messageLength(current_.bytes.front()) > 0;
    if (bitCount_ > 0) mergePart();
    current_.looseBits = bitCount_;
    current_.fault = isHead || bitCount_ > 0 ? Message::Fault::LostBit : Message::Fault::WrongHead;
    endMessage();
  }
  bits_ = 0;
  bitCount_ = 0;
  part_ = {};
  closing_ = false;
  lastEdge_.reset();
  lastClock_.reset();
}

void Decoder::forget(Time before) {
  while (!messages_.empty() && messages_.front().end < before) {
    if (closing_ && current_.bytes.empty() && messages_.size() == 1) break;
    messages_.pop_front();
    ++forgotten_;
  }
  while (!shortPhases_.empty() && shortPhases_.front().end < before) shortPhases_.pop_front();
}

}  // namespace monitra::wire
