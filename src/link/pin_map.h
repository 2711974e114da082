#pragma once

#include <cstdint>

namespace monitra::link {

/// Board revision of the controller.
enum class Pcb { V32, V4x };

/// Which register bit carries which signal: bit numbers 0 to 7 of the port's data register, and
/// for SpindleBit of its control register. The serial line shares the Y and Z direction pins.
struct PinMap {
  std::uint8_t XStepBit;
  std::uint8_t XDirBit;
  std::uint8_t YStepBit;
  std::uint8_t YDirBit;
  std::uint8_t ZStepBit;
  std::uint8_t ZDirBit;
  std::uint8_t SpindleBit;
  std::uint8_t SorosAdatBit;
  std::uint8_t SorosOrajelBit;
};

inline constexpr PinMap pcb32Pins{7, 4, 1, 5, 6, 2, 1, 5, 2};
inline constexpr PinMap pcb4xPins{6, 2, 4, 5, 1, 7, 1, 5, 7};

constexpr const PinMap& pinMap(Pcb pcb) {
  return pcb == Pcb::V32 ? pcb32Pins : pcb4xPins;
}

constexpr std::uint8_t mask(std::uint8_t bit) {
  return static_cast<std::uint8_t>(1U << bit);
}

}  // namespace monitra::link
