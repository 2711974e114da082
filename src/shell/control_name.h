#pragma once

#include <cassert>
#include <cstddef>
#include <string_view>

#include "shell/window_table.h"

namespace monitra::shell {

/// Where the entry of a control, or of an element of a control array, stands in the table of the
/// window; -1 if there is none. (With sanitizers GCC has no constant comparisons with null.)
constexpr int findControl(std::string_view name, int index = -1) {
  int at = 0;
  for (const ControlDescription& entry : windowControls()) {
    const auto [first, count] = entry.elements;
    const bool single = count == 0 && index < 0;
    if (entry.name == name && (single || (index >= first && index < first + count))) return at;
    ++at;
  }
  return -1;
}

/// A control, or an element of a control array, by its name in the table of the window. A name or
/// an index that isn't there doesn't compile.
class ControlName {
 public:
  consteval ControlName(const char* name, int index = -1)
      : at_(findControl(name, index)), index_(index) {
    if (at_ < 0) throw "the window has no such control";
  }

  constexpr const ControlDescription& entry() const {
    return windowControls()[static_cast<std::size_t>(at_)];
  }
  constexpr int index() const { return index_; }  ///< of the element; -1 for a single control

 private:
  friend class ControlArray;
  constexpr ControlName(int at, int index) : at_(at), index_(index) {}

  int at_;
  int index_;
};

/// A control array by its name, which is looked up as that of a control is.
class ControlArray {
 public:
  consteval ControlArray(const char* name) : name_(name) {
    bool found = false;
    for (const ControlDescription& entry : windowControls()) {
      if (entry.name != name_ || entry.elements.count == 0) continue;
      found = true;
      kind_ = entry.kind;
    }
    if (!found) throw "the window has no such control array";
  }

  constexpr Kind kind() const { return kind_; }
  /// An index that it doesn't have is an error of the caller; debug builds stop on it.
  ControlName operator[](int index) const {
    const int at = findControl(name_, index);
    assert(at >= 0);
    return {at, index};
  }

 private:
  std::string_view name_;
  Kind kind_ = Kind::Label;
};

}  // namespace monitra::shell
