#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "wire/decoder.h"

namespace monitra::wire {

/// Two messages that belong side by side, by their positions in two recordings; one that the other
/// recording has no counterpart of stands alone.
struct Pairing {
  std::optional<std::size_t> first;
  std::optional<std::size_t> second;
  bool same = false;  ///< of the same bytes
};

/// All messages of two recordings, in their orders. Times don't count.
std::vector<Pairing> compare(const std::deque<Message>& first, const std::deque<Message>& second);

/// What differs in a pair that is not the same, in Hungarian; empty for one that is.
std::string differenceText(const Pairing& pair, const std::deque<Message>& first,
                           const std::deque<Message>& second);

}  // namespace monitra::wire
