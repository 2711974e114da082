#pragma once

#include <array>
#include <string>

#include "link/pin_map.h"

namespace monitra::link {

/// Names of a register's eight bits: the pin ("D5", "C1") and behind it, each after a "_", the
/// signals that it carries ("D5_YDir_SorosAdat").
std::array<std::string, 8> dataPinNames(const PinMap& pins);
std::array<std::string, 8> controlPinNames(const PinMap& pins);

}  // namespace monitra::link
