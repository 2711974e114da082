#include "store/file_kind.h"

#include <algorithm>

namespace monitra::store {

namespace {

bool hasExtension(std::string_view path, std::string_view extension) {
  if (path.size() < extension.size()) return false;
  return std::ranges::equal(
      path.substr(path.size() - extension.size()), extension,
      [](char c, char wanted) { return (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c) == wanted; });
}

}  // namespace

FileKind fileKind(std::string_view path) {
  if (hasExtension(path, ".pwm")) return FileKind::Setup;
  return hasExtension(path, ".hex") ? FileKind::Firmware : FileKind::None;
}

}  // namespace monitra::store
