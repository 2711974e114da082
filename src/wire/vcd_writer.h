#pragma once

#include <functional>
#include <string_view>

#include "wire/trace.h"

namespace monitra::wire {

/// Gives what is kept of a recording as a Value Change Dump, piece by piece, up to the first piece
/// that the function refuses. Times are in microseconds from the first change, of a recording
/// without a board in nanoseconds. A wire is "x" until its level is known.
void writeVcd(const Trace& trace, const std::function<bool(std::string_view)>& write);

}  // namespace monitra::wire
