#pragma once

#include <string>

namespace monitra::settings {

/// A folder of the user's for all of the programs: "monitra" in the folder that an environment
/// variable names by its full path, or else in this one of the home that $HOME or else the system
/// names; empty for a user without a home.
std::string userFolder(const char* variable, const char* inHome);

}  // namespace monitra::settings
