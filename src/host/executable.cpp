#include "host/executable.h"

#include <csignal>
#include <filesystem>
#include <system_error>

namespace monitra::host {

void surviveWriteSignals() {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

platform::ProgramIdentity programIdentity(const std::string& title) {
  std::error_code error;
  const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
  platform::ProgramIdentity program;
  program.EXEName = executable.stem();
  program.Path = executable.parent_path();
  program.Title = title;
  program.Major = MONITRA_VERSION_MAJOR;
  program.Minor = MONITRA_VERSION_MINOR;
  program.Revision = MONITRA_VERSION_PATCH;
  return program;
}

}  // namespace monitra::host
