#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace monitra::controller {

/// How a board is wired to the port, as its own connector shows it: bits of the data register, for
/// the axes X, Y, Z, and of the control register. The serial line shares two direction pins.
struct Wiring {
  std::string_view board;
  std::array<std::uint8_t, 3> stepBits;
  std::array<std::uint8_t, 3> dirBits;
  std::uint8_t dataBit;
  std::uint8_t clockBit;
  std::uint8_t relayBit;
};

inline constexpr Wiring wiringV32{"PCB V3.2", {7, 1, 6}, {4, 5, 2}, 5, 2, 1};
inline constexpr Wiring wiringV4x{"PCB V4.x", {6, 4, 1}, {2, 5, 7}, 5, 7, 1};

/// What the controller has made of the machine.
struct Machine {
  struct Axis {
    long forward = 0;  ///< steps with the direction pin high
    long backward = 0;
    unsigned lines = 0;  ///< winding lines that are on: bit 0 for L1 to bit 3 for L4

    long position() const { return forward - backward; }
  };
  std::array<Axis, 3> axes;  ///< X, Y, Z
  /// Whether the spindle runs, which its toggle asks for by a low bit; unknown until the first
  /// write to the control register.
  std::optional<bool> spindle;

  /// Load of the power supply: six lines are 100.
  double loadPercent() const;
};

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

/// A controller and its machine. It sees pin levels and nothing else. On the serial line a bit is
/// the level of the data pin at a rising edge of the clock pin, a byte is eight bits, the least
/// significant first, and the first byte of a message tells its length. A rising edge of a step pin
/// moves the axis, and what has come of a message by then is none.
class VirtualController {
 public:
  explicit VirtualController(const Wiring& wiring) : wiring_(wiring) {}

  /// The pins of the data register, or the control register, now have these levels.
  void dataPins(std::uint8_t levels);
  void controlPins(std::uint8_t levels);

  /// So long a time has passed that what has come of a message is none.
  void pause();

  /// It hangs on these pins from now on, and what has come of a message is none.
  void use(const Wiring& wiring);

  /// As new: a machine at rest, and no message begun.
  void restart();

  const Wiring& wiring() const { return wiring_; }
  const Machine& machine() const { return machine_; }

  /// Called at the end of each message, and for bytes that make none.
  std::function<void(const Received&)> received;
  /// Called when an axis has moved or the spindle has been switched.
  std::function<void()> moved;

 private:
  void takeBit(bool bit);
  void takeByte(std::uint8_t byte);
  void endMessage(Received::Kind kind);

  Wiring wiring_;
  Machine machine_;
  std::uint8_t levels_ = 0xFF;  ///< unknown at first; high, so that what is seen first is no edge
  unsigned bits_ = 0;
  int bitCount_ = 0;
  std::vector<std::uint8_t> message_;
};

/// Bytes as decimal numbers with blanks between them.
std::string bytesText(const std::vector<std::uint8_t>& bytes);

/// The content of a received message in Hungarian, a line each: the fields of a Setup, the motor
/// and line of a frame.
std::vector<std::string> describe(const Received& message);

/// The state of a machine in Hungarian, in one line.
std::string describe(const Machine& machine);

}  // namespace monitra::controller
