#pragma once

#include <vector>

#include "wire/decoder.h"
#include "wire/history.h"

namespace monitra::wire {

/// A bit of a message, from the clock's rising edge to that of the next bit, the last one to the
/// message's end.
struct Bit {
  Time start;
  Time end;
  bool level;
};

/// All bits of a message that is still whole in the history, eight to a byte.
std::vector<Bit> bitsOf(const History& history, const Message& message);

}  // namespace monitra::wire
