#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "wire/levels.h"

namespace monitra::wire {

/// The words of a Value Change Dump, which must outlive it.
class VcdTokens {
 public:
  explicit VcdTokens(std::string_view text) : text_(text) {}

  /// Empty at the end.
  std::string_view next() {
    while (at_ < text_.size() && isBlank(text_[at_])) ++at_;
    const std::size_t from = at_;
    while (at_ < text_.size() && !isBlank(text_[at_])) ++at_;
    return text_.substr(from, at_ - from);
  }

  /// What stands up to the next "$end", which it passes.
  std::vector<std::string_view> toEnd();
  void skipToEnd();

  /// That of the last word, from 1 on.
  long line() const;

 private:
  static bool isBlank(char c) { return static_cast<unsigned char>(c) <= ' '; }

  std::string_view text_;
  std::size_t at_ = 0;
};

/// Which wires of a layout an identifier code stands for.
class WireCodes {
 public:
  void add(const std::string& code, Levels wires);
  Levels wires(std::string_view code) const {
    if (code.size() == 1) return short_[static_cast<unsigned char>(code.front())];
    const auto found = long_.find(code);
    return found == long_.end() ? Levels{0} : found->second;
  }

 private:
  std::array<Levels, 256> short_{};
  std::map<std::string, Levels, std::less<>> long_;
};

/// What stands ahead of the changes.
class VcdDeclarations {
 public:
  struct Wire {
    std::string code;
    std::string name;
  };

  /// Up to the end of the declarations. Gives what is wrong, in Hungarian; empty if nothing is.
  std::string read(VcdTokens& tokens);

  const std::vector<Wire>& wires() const { return wires_; }  ///< of one bit
  std::vector<std::string> names() const;

  /// The time of so many ticks; none if it is more than a year.
  std::optional<Time> time(std::int64_t ticks) const;

 private:
  std::string readScale(const std::vector<std::string_view>& words);
  void readWire(const std::vector<std::string_view>& words);

  std::vector<Wire> wires_;
  std::int64_t multiplier_ = 1;  ///< nanoseconds a tick
  std::int64_t divisor_ = 1;     ///< ticks a nanosecond
};

}  // namespace monitra::wire
