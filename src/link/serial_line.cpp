#include "link/serial_line.h"

#include <algorithm>

namespace monitra::link {

namespace {

constexpr std::uint8_t withBit(std::uint8_t value, std::uint8_t bit) {
  return static_cast<std::uint8_t>(value | mask(bit));
}

constexpr std::uint8_t withoutBit(std::uint8_t value, std::uint8_t bit) {
  return static_cast<std::uint8_t>(value & ~mask(bit));
}

}  // namespace

SerialLine::SerialLine(const PortSelection& port, platform::PortRegisters& registers,
                       platform::Sleeper& sleeper)
    : port_(port), registers_(registers), sleeper_(sleeper) {}

void SerialLine::SorosBit(bool bit) {
  const PinMap& pins = port_.pins();
  const std::int32_t address = port_.selectedAddress();
  const std::uint8_t read = registers_.DlPortReadPortUchar(address);
  const std::uint8_t b =
      bit ? withBit(read, pins.SorosAdatBit) : withoutBit(read, pins.SorosAdatBit);
  const std::uint8_t clockHigh = withBit(b, pins.SorosOrajelBit);
  writeAndWait(address, read, b);
  writeAndWait(address, b, clockHigh);
  writeAndWait(address, clockHigh, withoutBit(b, pins.SorosOrajelBit));
}

void SerialLine::SorosBajt(std::uint8_t value) {
  for (std::uint8_t n = 0; n < 8; ++n) SorosBit((value & mask(n)) != 0);
}

void SerialLine::SorosAlap() {
  const PinMap& pins = port_.pins();
  const std::int32_t address = port_.selectedAddress();
  const std::uint8_t read = registers_.DlPortReadPortUchar(address);
  registers_.DlPortWritePortUchar(
      address, withoutBit(withoutBit(read, pins.SorosAdatBit), pins.SorosOrajelBit));
}

void SerialLine::startTiming() {
  start_ = sleeper_.now();
  longestPause_ = {};
  lastEdge_.reset();
}

LineTiming SerialLine::timing() const {
  return {sleeper_.now() - start_, longestPause_};
}

void SerialLine::markMessage(bool begins) {
  sleeper_.bePunctual(begins);
  if (inMessage) inMessage(begins);
}

void SerialLine::writeAndWait(std::int32_t address, std::uint8_t before, std::uint8_t value) {
  registers_.DlPortWritePortUchar(address, value);
  if (value != before) noteEdge();
  sleeper_.Sleep(1);
}

void SerialLine::noteEdge() {
  const std::chrono::nanoseconds now = sleeper_.now();
  if (lastEdge_) longestPause_ = std::max(longestPause_, now - *lastEdge_);
  lastEdge_ = now;
}

}  // namespace monitra::link
