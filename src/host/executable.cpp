#include "host/executable.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace monitra::host {

void openStandardDescriptors() {
  // The lowest free number is the one that is given.
  int given = -1;
  do {
    given = ::open("/", O_PATH);
  } while (given >= 0 && given <= STDERR_FILENO);
  if (given > STDERR_FILENO) ::close(given);
}

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
