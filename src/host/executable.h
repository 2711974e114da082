#pragma once

#include <string>

#include "platform/program_identity.h"

namespace monitra::host {

/// Writing to a closed pipe or past a limit of file size is from now on a failure of that write and
/// not the end of the process: it must not cut a shutdown short.
void surviveWriteSignals();

/// Identity of the running executable, from the file that it was started from.
platform::ProgramIdentity programIdentity(const std::string& title);

}  // namespace monitra::host
