#include "settings/user_folder.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace monitra::settings {

std::string userFolder(const char* variable, const char* inHome) {
  const char* const named = std::getenv(variable);
  if (named != nullptr && named[0] == '/') return std::string(named) + "/monitra";
  const char* home = std::getenv("HOME");
  if (home == nullptr || home[0] != '/') {
    const passwd* const user = ::getpwuid(::getuid());
    home = user != nullptr ? user->pw_dir : nullptr;
  }
  if (home == nullptr || home[0] != '/') return {};
  return std::string(home) + "/" + inHome + "/monitra";
}

}  // namespace monitra::settings
