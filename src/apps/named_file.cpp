#include "apps/named_file.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <system_error>

#include "store/file_kind.h"

namespace monitra::apps {

namespace {

/// Why nothing is opened; empty if the file can be.
std::string refusal(std::span<char* const> arguments, platform::Files& files) {
  if (arguments.size() > 1)
    return "Induláskor csak egy fájl adható meg, ezért egyik sem nyílt meg.";
  const std::string path = arguments.front();
  const std::string name = "A(z) '" + path + "' ";
  if (store::fileKind(path) == store::FileKind::None) {
    return name + "nem Setup (.pwm) és nem firmware (.hex), ezért nem nyílt meg.";
  }
  return files.Dir(path).empty() ? name + "nem található, ezért nem nyílt meg." : std::string{};
}

}  // namespace

void openNamed(shell::Lap& lap, platform::Files& files, std::span<char* const> arguments) {
  if (arguments.empty()) return;
  const std::string before = lap.Esemeny.Caption;
  const controls::Status kindBefore = lap.Esemeny.kind();
  std::error_code error;
  const std::string path = std::filesystem::absolute(arguments.front(), error);
  const std::string why = refusal(arguments, files);
  why.empty() ? lap.openDropped(path) : lap.Esemeny.show(controls::Status::Warning, why);
  if (before.empty()) return;
  // What the start had to say must not be lost.
  const std::string told = lap.Esemeny.Caption;
  lap.Esemeny.show(std::max(kindBefore, lap.Esemeny.kind()),
                   told.empty() ? before : before + " " + told);
}

}  // namespace monitra::apps
