#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace monitra::support {

/// What a shell command printed, errors included, and its exit code.
struct Ran {
  std::string output;
  int exitCode = -1;
};

inline Ran shell(const std::string& command) {
  Ran ran;
  FILE* const pipe = ::popen(("{ " + command + "\n} 2>&1").c_str(), "r");
  std::array<char, 4096> buffer{};
  while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    ran.output.append(buffer.data(), got);
  }
  ran.exitCode = WEXITSTATUS(::pclose(pipe));
  return ran;
}

/// A word that the shell takes as it stands.
inline std::string quoted(const std::string& word) {
  return "'" + word + "'";
}

}  // namespace monitra::support
