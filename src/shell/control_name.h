#pragma once

#include <algorithm>
#include <cassert>
#include <string_view>

#include "shell/window_table.h"

namespace monitra::shell {

/// The entry of a control, or of an element of a control array; null if there is none.
constexpr const ControlDescription* findControl(std::string_view name, int index = -1) {
  for (const ControlDescription& entry : windowControls()) {
    const auto [first, count] = entry.elements;
    const bool single = count == 0 && index < 0;
    if (entry.name == name && (single || (index >= first && index < first + count))) return &entry;
  }
  return nullptr;
}

/// A control, or an element of a control array, by its name in the table of the window. A name or
/// an index that isn't there doesn't compile.
class ControlName {
 public:
  consteval ControlName(const char* name, int index = -1)
      : entry_(findControl(name, index)), index_(index) {
    if (entry_ == nullptr) throw "the window has no such control";
  }

  constexpr const ControlDescription& entry() const { return *entry_; }
  constexpr int index() const { return index_; }  ///< of the element; -1 for a single control

 private:
  friend class ControlArray;
  constexpr ControlName(const ControlDescription* entry, int index)
      : entry_(entry), index_(index) {}

  const ControlDescription* entry_;
  int index_;
};

/// A control array by its name, which is looked up as that of a control is.
class ControlArray {
 public:
  consteval ControlArray(const char* name) : first_(nullptr) {
    for (const ControlDescription& entry : windowControls()) {
      if (first_ == nullptr && entry.name == name && entry.elements.count > 0) first_ = &entry;
    }
    if (first_ == nullptr) throw "the window has no such control array";
  }

  constexpr Kind kind() const { return first_->kind; }
  /// An index that it doesn't have is an error of the caller; debug builds stop on it.
  ControlName operator[](int index) const {
    const ControlDescription* const entry = findControl(first_->name, index);
    assert(entry != nullptr);
    return {entry, index};
  }

 private:
  const ControlDescription* first_;
};

}  // namespace monitra::shell
