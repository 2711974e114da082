#pragma once

#include <string>

namespace monitra::platform {

/// What the running program knows of itself.
struct ProgramIdentity {
  std::string EXEName;  ///< file name of the executable, without its extension
  std::string Path;     ///< folder of the executable, without a slash at its end
  std::string Title;    ///< caption of every message box
  int Major = 0;
  int Minor = 0;
  int Revision = 0;
};

}  // namespace monitra::platform
