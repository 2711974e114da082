#pragma once

#include <array>
#include <cstdint>

#include "link/serial_line.h"

namespace monitra::link {

/// First byte of a command frame.
inline constexpr std::uint8_t MotorX = 99;
inline constexpr std::uint8_t MotorY = 110;
inline constexpr std::uint8_t MotorZ = 120;

/// Third byte: switches one winding line on, or all lines of the motor off.
inline constexpr std::uint8_t FazisL1 = 1;
inline constexpr std::uint8_t FazisL2 = 2;
inline constexpr std::uint8_t FazisL3 = 4;
inline constexpr std::uint8_t FazisL4 = 8;
inline constexpr std::uint8_t FazisKi = 16;

/// The motors X, Y, Z, and the four lines of each.
inline constexpr std::array motors{MotorX, MotorY, MotorZ};
inline constexpr std::array phaseLines{FazisL1, FazisL2, FazisL3, FazisL4};

/// Three-byte commands to a controller in its mode "PC-Link". A frame takes effect at once and
/// lasts; nothing comes back. The line must outlive it.
class CommandFrames {
 public:
  explicit CommandFrames(SerialLine& line) : line_(line) {}

  void KeretKuld(std::uint8_t motor, std::uint8_t value);

  /// The motors X, Y, Z off, in this order.
  void allMotorsOff();

 private:
  SerialLine& line_;
};

}  // namespace monitra::link
