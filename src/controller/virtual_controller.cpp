#include "controller/virtual_controller.h"

#include <array>
#include <bit>
#include <cstddef>
#include <utility>

namespace monitra::controller {

namespace {

constexpr std::uint8_t setupStart = 85;
constexpr std::uint8_t setupEnd = 255;
constexpr std::size_t setupLength = 20;
constexpr std::size_t frameLength = 3;
constexpr std::uint8_t allOff = 16;

/// Motor of a frame's first byte, or '\0'.
char motorName(std::uint8_t byte) {
  switch (byte) {
    case 99:
      return 'X';
    case 110:
      return 'Y';
    case 120:
      return 'Z';
    default:
      return '\0';
  }
}

/// Command of a frame's third byte, or an empty text.
std::string_view commandName(std::uint8_t byte) {
  switch (byte) {
    case 1:
      return "L1 be";
    case 2:
      return "L2 be";
    case 4:
      return "L3 be";
    case 8:
      return "L4 be";
    case allOff:
      return "ki";
    default:
      return {};
  }
}

/// 0 for a byte that begins no message.
std::size_t messageLength(std::uint8_t firstByte) {
  if (firstByte == setupStart) return setupLength;
  return motorName(firstByte) != '\0' ? frameLength : 0;
}

Received::Kind kindOf(const std::vector<std::uint8_t>& message) {
  if (message[1] != 0) return Received::Kind::Unknown;
  if (message.size() == setupLength) {
    return message.back() == setupEnd ? Received::Kind::Setup : Received::Kind::Unknown;
  }
  return commandName(message.back()).empty() ? Received::Kind::Unknown : Received::Kind::Frame;
}

std::vector<std::string> describeSetup(const std::vector<std::uint8_t>& bytes) {
  constexpr std::array<std::string_view, 6> modes{
      "Kikapcsolva (ONLINE)", "Fázis, végállás, gomb teszt", "Számláló diagnosztika",
      "Motor tuning",         "Tartóági PWM tuning",         "Forszírozott Impulzus figyelés!"};
  const auto number = [&bytes](std::size_t position) { return std::to_string(bytes[position]); };
  std::vector<std::string> lines;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const std::size_t at = 2 + 4 * axis;
    lines.push_back(std::string(1, "XYZ"[axis]) + " tengely: T1=" + number(at) +
                    ", TF=" + number(at + 1) + ", T2=" + number(at + 2) + ", T3=" + number(at + 3) +
                    ((bytes[18] >> axis & 1) != 0 ? ", egész lépés" : ", fél lépés"));
  }
  lines.push_back("Funkció: " + number(14) +
                  (bytes[14] < modes.size() ? " – " + std::string(modes[bytes[14]]) : ""));
  lines.push_back("Tuningút: " + std::to_string(bytes[15] * 256 + bytes[16]) +
                  " lépés, tűrés: " + number(17) + " lépés/mérés");
  return lines;
}

}  // namespace

double Machine::loadPercent() const {
  constexpr double linesForFullLoad = 6;
  int on = 0;
  for (const Axis& axis : axes) on += std::popcount(axis.lines);
  return on * 100 / linesForFullLoad;
}

void VirtualController::dataPins(std::uint8_t levels) {
  const int rising = levels & ~levels_;
  levels_ = levels;
  if ((rising >> wiring_.clockBit & 1) != 0) takeBit((levels >> wiring_.dataBit & 1) != 0);
  bool stepped = false;
  for (std::size_t axis = 0; axis < machine_.axes.size(); ++axis) {
    if ((rising >> wiring_.stepBits[axis] & 1) == 0) continue;
    const bool forward = (levels >> wiring_.dirBits[axis] & 1) != 0;
    ++(forward ? machine_.axes[axis].forward : machine_.axes[axis].backward);
    stepped = true;
  }
  if (!stepped) return;
  pause();
  if (moved) moved();
}

void VirtualController::controlPins(std::uint8_t levels) {
  const bool spindle = (levels >> wiring_.relayBit & 1) == 0;
  if (machine_.spindle == spindle) return;
  machine_.spindle = spindle;
  if (moved) moved();
}

void VirtualController::pause() {
  bits_ = 0;
  bitCount_ = 0;
  if (!message_.empty()) endMessage(Received::Kind::Unknown);
}

void VirtualController::use(const Wiring& wiring) {
  pause();
  wiring_ = wiring;
}

void VirtualController::restart() {
  machine_ = {};
  bits_ = 0;
  bitCount_ = 0;
  message_.clear();
}

void VirtualController::takeBit(bool bit) {
  if (bit) bits_ |= 1U << bitCount_;
  if (++bitCount_ < 8) return;
  const auto byte = static_cast<std::uint8_t>(bits_);
  bits_ = 0;
  bitCount_ = 0;
  takeByte(byte);
}

void VirtualController::takeByte(std::uint8_t byte) {
  message_.push_back(byte);
  const std::size_t length = messageLength(message_.front());
  if (message_.size() < length) return;
  const Received::Kind kind = length == 0 ? Received::Kind::Unknown : kindOf(message_);
  if (kind == Received::Kind::Frame) {
    unsigned& lines = machine_.axes[static_cast<std::size_t>(motorName(message_[0]) - 'X')].lines;
    lines = message_[2] == allOff ? 0 : lines | message_[2];
  }
  endMessage(kind);
}

void VirtualController::endMessage(Received::Kind kind) {
  const Received message{kind, std::exchange(message_, {})};
  if (received) received(message);
}

std::string bytesText(const std::vector<std::uint8_t>& bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    if (!text.empty()) text += ' ';
    text += std::to_string(byte);
  }
  return text;
}

std::vector<std::string> describe(const Received& message) {
  switch (message.kind) {
    case Received::Kind::Setup:
      return describeSetup(message.bytes);
    case Received::Kind::Frame:
      return {std::string(1, motorName(message.bytes[0])) +
              " motor: " + std::string(commandName(message.bytes[2]))};
    default:
      return {"Nem értelmezhető bájtok."};
  }
}

std::string describe(const Machine& machine) {
  std::string text;
  for (std::size_t axis = 0; axis < machine.axes.size(); ++axis) {
    const Machine::Axis& of = machine.axes[axis];
    text += std::string(1, "XYZ"[axis]) + " " + std::to_string(of.position());
    for (int line = 0; line < 4; ++line) {
      if ((of.lines >> line & 1) != 0) text += " L" + std::to_string(line + 1);
    }
    text += ", ";
  }
  text += "terhelés " + std::to_string(static_cast<int>(machine.loadPercent())) + "%";
  if (machine.spindle) text += *machine.spindle ? ", marómotor be" : ", marómotor ki";
  return text;
}

}  // namespace monitra::controller
