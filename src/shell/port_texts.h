#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/controls.h"
#include "platform/port_states.h"
#include "platform/remedy_box.h"

namespace monitra::shell {

/// What the status line says of the port that serves an entry of LPT: which one it is, or why
/// nothing goes out and what to do.
std::string portText(const platform::PortState& state, std::string_view entry);

/// How much that matters: nothing goes out, or printing gets in the way.
controls::Status portStatus(const platform::PortState& state);

/// The second half of that alone: why a port can't be used, and what to do. With a small letter.
std::string portCause(const platform::PortState& state);

/// What the status line says, with more advice and the command that mends it where there is one.
platform::Remedy portRemedy(const platform::PortState& state, std::string_view entry);

/// An address as "0x378".
std::string addressText(std::int32_t address);

}  // namespace monitra::shell
