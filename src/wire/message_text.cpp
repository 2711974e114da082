#include "wire/message_text.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "controller/virtual_controller.h"

namespace monitra::wire {

namespace {

constexpr std::size_t firstTiming = 2;
constexpr std::size_t mode = 14;
constexpr std::size_t length = 15;
constexpr std::size_t tolerance = 17;
constexpr std::size_t wholeSteps = 18;

/// The axes that run whole steps: "X, Z", or "egyik sem".
std::string wholeStepAxes(std::uint8_t byte) {
  std::string axes;
  for (unsigned axis = 0; axis < 3; ++axis) {
    if ((byte >> axis & 1U) != 0) axes += (axes.empty() ? "" : ", ") + std::string(1, "XYZ"[axis]);
  }
  return axes.empty() ? "egyik sem" : axes;
}

std::string unknownMeaning(const Message& message) {
  std::string reason = "rossz vég";
  if (message.fault == Message::Fault::LostBit) {
    reason = "elveszett bit: " + std::to_string(message.bytes.size()) + " bájt";
    if (message.looseBits > 0) reason += " és " + std::to_string(message.looseBits) + " bit";
    const std::size_t whole = messageLength(message.bytes.front());
    if (whole > 0) reason += " jött a(z) " + std::to_string(whole) + " bájtból";
  } else if (message.fault == Message::Fault::WrongHead) {
    reason = "rossz fej";
  }
  return "Hibás (" + reason + "): " + controller::bytesText(message.bytes);
}

}  // namespace

std::vector<SetupField> setupFields(const std::vector<std::uint8_t>& bytes) {
  constexpr std::array<const char*, 4> timings{"T1", "TF", "T2", "T3"};
  std::vector<SetupField> fields;
  for (std::size_t at = firstTiming; at < mode; ++at) {
    const std::size_t timing = at - firstTiming;
    fields.push_back(
        {timings[timing % timings.size()] + std::string(1, "XYZ"[timing / timings.size()]),
         std::to_string(bytes[at]), at, 1});
  }
  fields.push_back({"Funkció", std::to_string(bytes[mode]), mode, 1});
  fields.push_back(
      {"Tuningút", std::to_string(bytes[length] * 256 + bytes[length + 1]), length, 2});
  fields.push_back({"Tűrés", std::to_string(bytes[tolerance]), tolerance, 1});
  fields.push_back({"Egész lépés", wholeStepAxes(bytes[wholeSteps]), wholeSteps, 1});
  return fields;
}

std::string setupDifference(const std::vector<std::uint8_t>& before,
                            const std::vector<std::uint8_t>& after) {
  const std::vector<SetupField> old = setupFields(before);
  const std::vector<SetupField> now = setupFields(after);
  std::string text;
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (now[i].value == old[i].value) continue;
    text += (text.empty() ? "" : ", ") + now[i].name + ": " + old[i].value + " → " + now[i].value;
  }
  return text;
}

std::string kindText(Message::Kind kind) {
  if (kind == Message::Kind::Setup) return "Setup";
  return kind == Message::Kind::Frame ? "Keret" : "Ismeretlen";
}

std::string meaning(const Message& message) {
  if (message.kind == Message::Kind::Unknown) return unknownMeaning(message);
  if (message.kind == Message::Kind::Frame) {
    return controller::describe({controller::Received::Kind::Frame, message.bytes}).front();
  }
  std::string text;
  for (const SetupField& field : setupFields(message.bytes)) {
    text += (text.empty() ? "" : ", ") + field.name + "=" + field.value;
  }
  return text;
}

std::string byteName(const Message& message, std::size_t position) {
  if (message.kind == Message::Kind::Unknown) return {};
  const bool isSetup = message.kind == Message::Kind::Setup;
  if (position == 0) return isSetup ? "Indít" : "Motor";
  if (position + 1 == message.bytes.size()) return isSetup ? "Zár" : "Vonal";
  if (!isSetup) return {};
  for (const SetupField& field : setupFields(message.bytes)) {
    if (position >= field.firstByte && position < field.firstByte + field.bytes) return field.name;
  }
  return {};
}

std::string timeText(Time time) {
  struct Unit {
    double nanoseconds;
    const char* name;
  };
  constexpr std::array units{Unit{1e9, "s"}, Unit{1e6, "ms"}, Unit{1e3, "µs"}, Unit{1, "ns"}};
  const auto value = static_cast<double>(time.count());
  const Unit* unit = units.data();
  while (unit != &units.back() && std::abs(value) < unit->nanoseconds) ++unit;
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.4g", value / unit->nanoseconds);
  return std::string(text.data()) + " " + unit->name;
}

}  // namespace monitra::wire
