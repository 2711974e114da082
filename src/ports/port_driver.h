#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/port_states.h"

namespace monitra::ports {

/// The usual addresses of a printer port's data register, which are those that an entry of LPT can
/// name, in their order there.
inline constexpr std::array<std::int32_t, 3> entryAddresses{0x378, 0x278, 0x3BC};

enum class Register { Data, Control };

/// Offset of the control register from the data register.
inline constexpr std::int32_t controlOffset = 2;

/// The lines of the control register. Bits above them are no lines: one turns the data pins round.
inline constexpr std::uint8_t controlLines = 0x0F;

/// One printer port, held open. Neither opening nor closing moves a data pin; a control pin moves
/// for no more than the driver's own microseconds.
class OpenPort {
 public:
  OpenPort() = default;
  OpenPort(const OpenPort&) = delete;
  OpenPort& operator=(const OpenPort&) = delete;
  virtual ~OpenPort() = default;

  /// The value last written; of the control register its lines only. Nothing if the port refuses.
  virtual std::optional<std::uint8_t> read(Register which) = 0;

  /// The value, of the control register its lines only, stands on the pins on return. False if the
  /// port refuses.
  virtual bool write(Register which, std::uint8_t value) = 0;

  /// Whether it is still the PC's; one that is not takes writes without a word.
  virtual bool present() = 0;
};

/// A port of the PC, by the number that the kernel gave it and its data register.
struct FoundPort {
  int number;
  std::int32_t address;

  bool operator==(const FoundPort&) const = default;
};

/// An opened port, or none and the reason.
struct Opening {
  std::unique_ptr<OpenPort> port;
  platform::PortState state;
};

/// One way to the ports of the PC.
class PortDriver {
 public:
  PortDriver() = default;
  PortDriver(const PortDriver&) = delete;
  PortDriver& operator=(const PortDriver&) = delete;
  virtual ~PortDriver() = default;

  /// The ports that can be reached this way, in the order of their numbers.
  virtual std::vector<FoundPort> find() = 0;

  /// Why there is none, where find() gives none.
  virtual platform::PortState none() const = 0;

  /// What opening would come to, without anything that could move a pin.
  virtual platform::PortState look(const FoundPort& port) = 0;

  /// Opens it for this program alone, and puts back the lines of the control register that the last
  /// run left, where opening moves them.
  virtual Opening open(const FoundPort& port, std::optional<std::uint8_t> lastControl) = 0;
};

}  // namespace monitra::ports
