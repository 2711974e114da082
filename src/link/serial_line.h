#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "link/port_selection.h"
#include "platform/port_registers.h"
#include "platform/sleeper.h"

namespace monitra::link {

/// How evenly the line was clocked.
struct LineTiming {
  std::chrono::nanoseconds duration{};
  std::chrono::nanoseconds longestPause{};  ///< between two changes of a level of the line
};

/// The one-way, two-wire line to the controller, clocked by hand over two pins of the data
/// register of the port selected in LPT. Each operation blocks until its last wait is over, and
/// leaves the other six pins as it finds them. All arguments must outlive it.
class SerialLine {
 public:
  /// A message is under way for as long as this lives.
  class Message {
   public:
    /// The line must outlive it.
    explicit Message(SerialLine& line) : line_(line) { line_.markMessage(true); }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;
    ~Message() { line_.markMessage(false); }

   private:
    SerialLine& line_;
  };

  SerialLine(const PortSelection& port, platform::PortRegisters& registers,
             platform::Sleeper& sleeper);

  /// One bit: data with the clock low, high, low, each level held for at least 1 ms.
  void SorosBit(bool bit);

  /// One byte, least significant bit first.
  void SorosBajt(std::uint8_t value);

  /// Both lines low, by one write and without a wait.
  void SorosAlap();

  /// Called with true ahead of the first bit of a message, with false behind its last.
  std::function<void(bool)> inMessage;

  /// Begins a measurement, and tells what has come of it up to now.
  void startTiming();
  LineTiming timing() const;

 private:
  void markMessage(bool begins);
  void writeAndWait(std::int32_t address, std::uint8_t before, std::uint8_t value);
  void noteEdge();

  const PortSelection& port_;
  platform::PortRegisters& registers_;
  platform::Sleeper& sleeper_;
  std::chrono::nanoseconds start_{};
  std::chrono::nanoseconds longestPause_{};
  std::optional<std::chrono::nanoseconds> lastEdge_;
};

}  // namespace monitra::link
