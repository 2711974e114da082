#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

#include "platform/port_registers.h"
#include "platform/sleeper.h"

namespace monitra::ports {

/// One access to a register, or one wait.
struct PortEvent {
  enum class Kind { Read, Write, Sleep };
  Kind kind;
  std::int32_t address;          ///< of a register; 0 for a wait
  int value;                     ///< read or written byte; milliseconds of a wait
  std::chrono::nanoseconds end;  ///< when it was over, on the monotonic clock
};

/// Passes everything on to real registers and waits, and keeps a record of it in order.
class AccessRecorder : public platform::PortRegisters, public platform::Sleeper {
 public:
  /// Both must outlive it.
  AccessRecorder(platform::PortRegisters& registers, platform::Sleeper& sleeper)
      : registers_(registers), sleeper_(sleeper) {
    constexpr std::size_t ofAnUpload = 4096;
    events_.reserve(ofAnUpload);
  }

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;
  void Sleep(int milliseconds) override;
  void bePunctual(bool on) override { sleeper_.bePunctual(on); }
  std::chrono::nanoseconds now() const override { return sleeper_.now(); }

  const std::vector<PortEvent>& events() const { return events_; }

 private:
  void keep(PortEvent::Kind kind, std::int32_t address, int value);

  platform::PortRegisters& registers_;
  platform::Sleeper& sleeper_;
  std::vector<PortEvent> events_;
};

}  // namespace monitra::ports
