#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace monitra::ports {

/// How a board is wired to the port's data register, as its own connector shows it.
struct Wiring {
  std::string_view board;
  std::uint8_t dataBit;
  std::uint8_t clockBit;
};

inline constexpr Wiring wiringV32{"PCB V3.2", 5, 2};
inline constexpr Wiring wiringV4x{"PCB V4.x", 5, 7};

/// What a controller has taken from the line.
struct Received {
  enum class Kind {
    Setup,    ///< twenty bytes: 85, 0, the Setup, 255
    Frame,    ///< three bytes: motor, 0, command
    Unknown,  ///< bytes that make no message
  };
  Kind kind;
  std::vector<std::uint8_t> bytes;
};

/// The receiving end of the serial line. It sees pin levels and nothing else: a bit is the level
/// of the data pin at a rising edge of the clock pin, a byte is eight bits, the least significant
/// first, and the first byte of a message tells its length.
class VirtualController {
 public:
  explicit VirtualController(Wiring wiring) : wiring_(wiring) {}

  /// The data register's pins now have these levels.
  void pins(std::uint8_t levels);

  /// Called at the end of each message, and for each byte that begins none.
  std::function<void(const Received&)> received;

 private:
  void takeBit(bool bit);
  void takeByte(std::uint8_t byte);

  Wiring wiring_;
  bool clock_ = true;  ///< unknown at first; high, so that the first level seen is no edge
  unsigned bits_ = 0;
  int bitCount_ = 0;
  std::vector<std::uint8_t> message_;
};

/// Bytes as decimal numbers with blanks between them.
std::string bytesText(const std::vector<std::uint8_t>& bytes);

/// The content of a received message in Hungarian, a line each: the fields of a Setup, the motor
/// and line of a frame.
std::vector<std::string> describe(const Received& message);

}  // namespace monitra::ports
