#pragma once

#include <string>

#include "platform/program_identity.h"

namespace monitra::host {

/// Gives the numbers of standard input, output and error to something that refuses every reading
/// and writing where the process was started without them: a file or a display that got such a
/// number would be written into. To be called before anything is opened.
void openStandardDescriptors();

/// Writing to a closed pipe or past a limit of file size is from now on a failure of that write and
/// not the end of the process: it must not cut a shutdown short.
void surviveWriteSignals();

/// Identity of the running executable, from the file that it was started from.
platform::ProgramIdentity programIdentity(const std::string& title);

}  // namespace monitra::host
