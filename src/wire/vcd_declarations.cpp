#include "wire/vcd_declarations.h"

#include <algorithm>
#include <charconv>

namespace monitra::wire {

std::vector<std::string_view> VcdTokens::toEnd() {
  std::vector<std::string_view> words;
  for (std::string_view word = next(); !word.empty() && word != "$end"; word = next()) {
    words.push_back(word);
  }
  return words;
}

void VcdTokens::skipToEnd() {
  for (std::string_view word = next(); !word.empty() && word != "$end"; word = next()) continue;
}

long VcdTokens::line() const {
  return 1 + std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(at_), '\n');
}

void WireCodes::add(const std::string& code, Levels wires) {
  Levels& of = code.size() == 1 ? short_[static_cast<unsigned char>(code.front())] : long_[code];
  of |= wires;
}

std::string VcdDeclarations::read(VcdTokens& tokens) {
  for (;;) {
    const std::string_view word = tokens.next();
    if (word.empty()) return "ez nem VCD-felvétel, vagy félbeszakadt";
    if (word == "$enddefinitions") {
      tokens.skipToEnd();
      return wires_.empty() ? "nincs benne egybites vezeték" : "";
    }
    if (word.front() != '$') return "ez nem VCD-felvétel";
    const std::vector<std::string_view> words = tokens.toEnd();
    if (word == "$var") readWire(words);
    if (word != "$timescale") continue;
    if (std::string fault = readScale(words); !fault.empty()) return fault;
  }
}

/// Type, width, code, name and maybe an index.
void VcdDeclarations::readWire(const std::vector<std::string_view>& words) {
  if (words.size() < 4 || words[1] != "1" || words[0] == "real") return;
  std::string name(words[3]);
  if (words.size() > 4) name += words[4];
  wires_.push_back({std::string(words[2]), name});
}

/// "1 us", "10ns".
std::string VcdDeclarations::readScale(const std::vector<std::string_view>& words) {
  struct Unit {
    std::string_view name;
    std::int64_t multiplier;
    std::int64_t divisor;
  };
  constexpr std::array units{Unit{"s", 1'000'000'000, 1}, Unit{"ms", 1'000'000, 1},
                             Unit{"us", 1'000, 1},        Unit{"ns", 1, 1},
                             Unit{"ps", 1, 1'000},        Unit{"fs", 1, 1'000'000}};
  std::string scale;
  for (const std::string_view word : words) scale += word;
  std::int64_t number = 0;
  const char* const behind = scale.data() + scale.size();
  const auto [end, error] = std::from_chars(scale.data(), behind, number);
  const auto* const unit = std::ranges::find(
      units, std::string_view(end, static_cast<std::size_t>(behind - end)), &Unit::name);
  if (error != std::errc() || unit == units.end() || number < 1 || number > 100) {
    return "ismeretlen időegység: " + scale.substr(0, 20);
  }
  multiplier_ = unit->multiplier * number;
  divisor_ = unit->divisor;
  return {};
}

std::vector<std::string> VcdDeclarations::names() const {
  std::vector<std::string> names;
  for (const Wire& wire : wires_) names.push_back(wire.name);
  return names;
}

std::optional<Time> VcdDeclarations::time(std::int64_t ticks) const {
  // A year: what is worked out from times must not overflow.
  constexpr std::int64_t latest = 365LL * 24 * 3600 * 1'000'000'000;
  const std::int64_t scaled = ticks / divisor_;
  if (scaled > latest / multiplier_) return {};
  return Time(scaled * multiplier_);
}

}  // namespace monitra::wire
