#pragma once

#include <string>

#include "platform/program_identity.h"

namespace monitra::host {

/// Identity of the running executable, from the file that it was started from.
platform::ProgramIdentity programIdentity(const std::string& title);

}  // namespace monitra::host
