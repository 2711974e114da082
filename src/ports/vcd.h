#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "ports/access_recorder.h"

namespace monitra::ports {

/// The registers of one port and the names of their bits' wires, letters, digits and "_" only.
struct VcdPort {
  std::int32_t dataAddress;
  std::int32_t controlAddress;
  std::array<std::string, 8> dataWires;
  std::array<std::string, 8> controlWires;
};

/// The recorded writes to one port as a Value Change Dump in microseconds from the first event.
/// Each write gives all eight wires of its register at its time, so that none is lost; a wire is
/// "x" until its register is first read or written.
std::string vcd(const VcdPort& port, const std::vector<PortEvent>& events);

}  // namespace monitra::ports
