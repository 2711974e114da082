#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/pin_map.h"
#include "wire/trace.h"

namespace monitra::wire {

/// What its reader knows of a recording's wires. Without names they are taken from the recording,
/// which tells them if it is one of ours.
struct WireNames {
  std::string data;
  std::string clock;
  std::optional<link::Pcb> pcb = {};  ///< the board, where the names of the pins don't tell it

  bool given() const { return !data.empty() || !clock.empty(); }
};

/// A recording, or why it can't be read, in Hungarian and with the line. One that breaks off has
/// both: what stands ahead of the fault is kept.
struct ReadTrace {
  std::unique_ptr<Trace> trace;
  std::string fault;
  std::vector<std::string> names;  ///< of all wires, where the declarations could be read
  /// Only the names of the data and clock wires are missing.
  bool needsNames = false;
};

/// Reads a Value Change Dump with any time scale down to 1 fs. A wire keeps its level where the
/// dump says that it is unknown.
ReadTrace readVcd(std::string_view dump, const WireNames& names);

}  // namespace monitra::wire
