#include "ports/access_recorder.h"

namespace monitra::ports {

std::uint8_t AccessRecorder::DlPortReadPortUchar(std::int32_t address) {
  const std::uint8_t value = registers_.DlPortReadPortUchar(address);
  keep(PortEvent::Kind::Read, address, value);
  return value;
}

void AccessRecorder::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  registers_.DlPortWritePortUchar(address, value);
  keep(PortEvent::Kind::Write, address, value);
}

void AccessRecorder::Sleep(int milliseconds) {
  sleeper_.Sleep(milliseconds);
  keep(PortEvent::Kind::Sleep, 0, milliseconds);
}

void AccessRecorder::keep(PortEvent::Kind kind, std::int32_t address, int value) {
  events_.push_back({kind, address, value, now()});
}

}  // namespace monitra::ports
