#pragma once

#include <string>

#include "platform/program_identity.h"

namespace monitra::store {

/// Title of the window: the program's name and version, and behind the given number of blanks the
/// open file's name in parentheses if there is one.
std::string windowTitle(const platform::ProgramIdentity& program, const std::string& file = {},
                        int blanks = 2);

}  // namespace monitra::store
