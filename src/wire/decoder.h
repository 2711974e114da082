#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "wire/levels.h"

namespace monitra::wire {

/// Each level of the serial line must stand for so long.
inline constexpr Time shortestPhase = std::chrono::milliseconds(1);

/// A controller gives up a message whose clock stands still for longer.
inline constexpr Time patience = std::chrono::milliseconds(200);

/// The wires that carry the serial line. A rising edge of a step wire means that the levels belong
/// to a movement, and what has come of a message by then is none.
struct SerialLines {
  int data = 0;
  int clock = 1;
  Levels steps = 0;

  Levels mask() const { return wireMask(data) | wireMask(clock); }
  bool operator==(const SerialLines&) const = default;
};

/// A time for which a level of the serial line stood.
struct Phase {
  Time start;
  Time end;
};

/// What a controller makes of the serial line.
struct Message {
  enum class Kind {
    Setup,    ///< twenty bytes: 85, 0, the Setup, 255
    Frame,    ///< three bytes: motor, 0, command
    Unknown,  ///< bytes that make no message
  };
  /// Why it is none.
  enum class Fault {
    None,
    LostBit,    ///< it broke off
    WrongHead,  ///< of the first two bytes
    WrongEnd,   ///< of the last byte
  };

  Kind kind = Kind::Unknown;
  Fault fault = Fault::None;
  std::vector<std::uint8_t> bytes;
  int looseBits = 0;    ///< behind the last byte, up to 7
  Time start{};         ///< its first change of a level
  Time end{};           ///< its last one
  Time longestPause{};  ///< between two changes
  int shortPhases = 0;
  SerialLines lines;
};

/// A length that its first byte gives to a message; 0 for a byte that begins none.
std::size_t messageLength(std::uint8_t firstByte);

/// Finds the messages in the levels of the serial line and their times, which is all that it knows.
/// A bit is the level of the data wire at a rising edge of the clock wire, a byte is eight bits,
/// the least significant first. Bytes that begin no message make one unknown message up to the next
/// byte that does, or to a pause. Fewer than eight bits without a byte ahead of them are nothing.
class Decoder {
 public:
  explicit Decoder(const SerialLines& lines) : lines_(lines) {}

  /// From now on these lines; what is under way ends.
  void use(const SerialLines& lines);

  /// The levels from this time on, which is not before the last one. Only the known wires have
  /// one, and a first level is no edge. True if what came before it was broken off by a pause.
  bool take(Time time, Levels levels, Levels known);

  /// Nothing has changed up to now. The result is that of take().
  bool pass(Time now);

  /// Nothing more comes.
  void finish();

  /// Those that have ended, in the order of time. The end and the figures of the last one are final
  /// once its last bit's clock is low again.
  const std::deque<Message>& messages() const { return messages_; }
  /// The phases in them that are too short, in the order of time.
  const std::deque<Phase>& shortPhases() const { return shortPhases_; }
  /// Messages that forget() has taken, which stood ahead of the first one.
  long forgotten() const { return forgotten_; }

  /// Takes what ended before a time off the lists.
  void forget(Time before);

  const SerialLines& lines() const { return lines_; }

 private:
  /// Edges since the last byte.
  struct Part {
    std::optional<Time> start;
    Time end{};
    Time longestPause{};
    std::vector<Phase> shortPhases;
  };

  void edge(Time time, bool clockMoved);
  void noteShort(Time start, Time end, Message* owner);
  void takeBit(bool bit);
  void takeByte(std::uint8_t byte);
  void mergePart();
  void endMessage();
  void breakOff();
  bool isLate(Time now) const;

  SerialLines lines_;
  Levels levels_ = 0;
  Levels known_ = 0;
  std::optional<Time> lastEdge_;   ///< of either line, in what is under way
  std::optional<Time> lastClock_;  ///< edge
  bool closing_ = false;           ///< the last byte's clock is still high
  unsigned bits_ = 0;
  int bitCount_ = 0;
  Part part_;
  Message current_;
  std::deque<Message> messages_;
  std::deque<Phase> shortPhases_;
  long forgotten_ = 0;
};

}  // namespace monitra::wire
