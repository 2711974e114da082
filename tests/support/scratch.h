#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace monitra::support {

/// A folder of its own for each test, in memory where that can be, removed with the object.
class Scratch {
 public:
  Scratch() {
    std::filesystem::path base = "/dev/shm";
    if (::access(base.c_str(), W_OK) != 0) base = std::filesystem::temp_directory_path();
    folder_ = ::mkdtemp((base / "monitra-XXXXXX").string().data());
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch() {
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(folder_, ignored);
  }

  std::string path(const std::string& name = {}) const {
    return name.empty() ? folder_.string() : (folder_ / name).string();
  }
  std::string write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
    return path(name);
  }
  std::string read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path folder_;
};

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
