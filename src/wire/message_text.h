#pragma once

#include <string>
#include <vector>

#include "wire/decoder.h"

namespace monitra::wire {

/// A value that a Setup message carries, in sending order.
struct SetupField {
  std::string name;  ///< "T1X", "Funkció"
  std::string value;
  std::size_t firstByte;  ///< of its one or two in the message
  std::size_t bytes;
};

/// Of a Setup message.
std::vector<SetupField> setupFields(const std::vector<std::uint8_t>& bytes);

/// What differs in the second of two Setup messages, as "T1X: 40 → 45"; empty if nothing does.
std::string setupDifference(const std::vector<std::uint8_t>& before,
                            const std::vector<std::uint8_t>& after);

/// The name of a kind: "Setup", "Keret", "Ismeretlen".
std::string kindText(Message::Kind kind);

/// What a message means, in Hungarian and in one line: the fields of a Setup, the motor and the
/// line of a frame, the bytes of an unknown one and the reason why it is unknown.
std::string meaning(const Message& message);

/// What a byte of the message is called: "T1X", "Motor", "Kezdet"; empty for one without a
/// meaning of its own, and in an unknown message.
std::string byteName(const Message& message, std::size_t position);

/// A time in the unit that suits it: "1.06 ms", "3.5 s", "12 µs".
std::string timeText(Time time);

}  // namespace monitra::wire
