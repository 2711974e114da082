#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace monitra::controls {

/// Count elements with the indexes First to First + Count - 1. An index outside that range is an
/// error of the caller; debug builds stop on it.
template <class T, int First, int Count>
class IndexedArray {
 public:
  IndexedArray() : elements_() {}

  static constexpr int first = First;
  static constexpr int end = First + Count;

  T& operator[](int index) { return elements_[offset(index)]; }
  const T& operator[](int index) const { return elements_[offset(index)]; }

 private:
  static std::size_t offset(int index) {
    assert(index >= first && index < end);
    return static_cast<std::size_t>(index - First);
  }

  std::array<T, static_cast<std::size_t>(Count)> elements_;
};

}  // namespace monitra::controls
