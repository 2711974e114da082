#include "ports/parport_folder.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <system_error>
#include <unistd.h>

namespace monitra::ports {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view portName = "parport";

/// The entries of a folder; none if it can't be read.
std::vector<fs::path> entries(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    found.push_back(at->path());
  }
  return found;
}

/// The whole number that a text consists of; -1 if it doesn't.
int wholeNumber(std::string_view text) {
  int number = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && end == text.data() + text.size() ? number : -1;
}

std::string firstWord(const fs::path& file) {
  std::ifstream stream(file);
  std::string word;
  stream >> word;
  return word;
}

std::string describeProgram(const std::string& number) {
  std::ifstream stream("/proc/" + number + "/comm");
  std::string name;
  std::getline(stream, name);
  return (name.empty() ? "?" : name) + " (" + number + ")";
}

/// Number of the process that has locked the file; empty if none has.
std::string locker(const struct stat& file) {
  std::ostringstream name;
  name << std::hex << std::setfill('0') << std::setw(2) << major(file.st_dev) << ':' << std::setw(2)
       << minor(file.st_dev) << ':' << std::dec << file.st_ino;
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    std::istringstream words(line);
    std::string order;
    std::string kind;
    std::string manner;
    std::string mode;
    std::string process;
    std::string locked;
    words >> order >> kind >> manner >> mode >> process >> locked;
    if (kind == "FLOCK" && locked == name.str()) return process;
  }
  return {};
}

/// By the names of its open files alone: a file itself can be on a disk that doesn't answer.
bool hasOpen(const fs::path& process, const fs::path& file) {
  return std::ranges::any_of(entries(process / "fd"), [&file](const fs::path& open) {
    std::error_code error;
    return fs::read_symlink(open, error) == file;
  });
}

}  // namespace

std::vector<FoundPort> ParportFolder::ports() const {
  std::vector<FoundPort> found;
  for (const fs::path& entry : entries(root_ / "proc/sys/dev/parport")) {
    const std::string name = entry.filename();
    if (!name.starts_with(portName)) continue;
    const int number = wholeNumber(std::string_view(name).substr(portName.size()));
    const int address = wholeNumber(firstWord(entry / "base-addr"));
    if (number >= 0 && address > 0) found.push_back({number, address});
  }
  std::ranges::sort(found, {}, &FoundPort::number);
  return found;
}

bool ParportFolder::exists(const FoundPort& port) const {
  std::error_code error;
  return fs::exists(folder(port), error);
}

std::vector<std::string> ParportFolder::registered(const FoundPort& port) const {
  std::vector<std::string> names;
  for (const fs::path& entry : entries(folder(port) / "devices")) {
    if (entry.filename() != "active") names.push_back(entry.filename());
  }
  std::ranges::sort(names);
  return names;
}

std::string ParportFolder::active(const FoundPort& port) const {
  const std::string name = firstWord(folder(port) / "devices/active");
  return name == "none" ? std::string{} : name;
}

bool ParportFolder::searches() const {
  std::error_code error;
  return fs::exists(root_ / "sys/module/parport_pc", error);
}

bool ParportFolder::servesPrograms() const {
  std::error_code error;
  return fs::exists(root_ / "sys/class/ppdev", error);
}

bool ParportFolder::loadsAtStart() const {
  for (const char* const folder : {"etc", "run", "usr/local/lib", "usr/lib"}) {
    for (const fs::path& file : entries(root_ / folder / "modules-load.d")) {
      std::ifstream stream(file);
      for (std::string line; std::getline(stream, line);) {
        if (line == "parport_pc") return true;
      }
    }
  }
  return false;
}

bool ParportFolder::forSeat(const FoundPort& port) const {
  struct stat device {};
  if (::stat(node(port).c_str(), &device) != 0) return false;
  std::ostringstream tagged;
  tagged << "run/udev/tags/uaccess/c" << major(device.st_rdev) << ':' << minor(device.st_rdev);
  std::error_code error;
  return fs::exists(root_ / tagged.str(), error);
}

fs::path ParportFolder::node(const FoundPort& port) const {
  return root_ / "dev" / (std::string(portName) + std::to_string(port.number));
}

fs::path ParportFolder::lock(const FoundPort& port) const {
  std::ostringstream name;
  name << "monitra-" << std::hex << port.address;
  return root_ / "run/lock" / name.str();
}

fs::path ParportFolder::folder(const FoundPort& port) const {
  return root_ / "proc/sys/dev/parport" / (std::string(portName) + std::to_string(port.number));
}

void findHolder(const ParportFolder& folder, const FoundPort& port, platform::PortState& state) {
  constexpr std::string_view forPrograms = "ppdev";
  for (const std::string& name : folder.registered(port)) {
    if (name.starts_with(forPrograms) || name == printerDriver) continue;
    state.holder = name;
    state.holderIsDriver = true;
    return;
  }
  state.holder = programHolding(folder.node(port));
  if (state.holder.empty()) state.holder = programHolding(folder.lock(port));
}

std::string programHolding(const fs::path& file) {
  struct stat wanted {};
  if (::stat(file.c_str(), &wanted) != 0) return {};
  if (const std::string process = locker(wanted); wholeNumber(process) > 0) {
    return describeProgram(process);
  }
  for (const fs::path& process : entries("/proc")) {
    const int number = wholeNumber(process.filename().string());
    if (number > 0 && number != ::getpid() && hasOpen(process, file)) {
      return describeProgram(process.filename());
    }
  }
  return {};
}

}  // namespace monitra::ports
