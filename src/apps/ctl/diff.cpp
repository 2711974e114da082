#include <iostream>
#include <optional>
#include <string>

#include "apps/ctl/commands.h"
#include "apps/ctl/json.h"
#include "apps/ctl/session.h"
#include "apps/ctl/terminal.h"
#include "revisions/read_beside.h"
#include "store/failure_texts.h"

namespace monitra::ctl {

namespace {

/// None, and told on standard error, if not all of it can be read.
std::optional<revisions::Fields> read(const std::string& file) {
  host::HostFiles files;
  const host::Windows1250 codePage;
  const revisions::ReadFile read = revisions::readBeside({files, codePage}, fullPath(file));
  if (read.failure == platform::Failure::None) return read.fields;
  std::cerr << store::unreadableText(read.failure, file) << '\n';
  return std::nullopt;
}

/// As in the file, but for the blank of a number's sign.
std::string valueText(const revisions::Fields& fields, revisions::FieldIndex field) {
  const std::string text = revisions::recordText(fields, field);
  return text.substr(text.starts_with(' ') ? 1 : 0);
}

}  // namespace

ExitCode diff(const DiffOptions& options) {
  const std::optional<revisions::Fields> a = read(options.first);
  const std::optional<revisions::Fields> b = read(options.second);
  if (!a || !b) return unreadable;
  Json list = Json::array();
  for (const revisions::FieldIndex field : revisions::differences(*a, *b)) {
    list.push_back({{"name", revisions::fieldName(field)},
                    {"a", valueText(*a, field)},
                    {"b", valueText(*b, field)}});
  }
  if (options.json) {
    writeJson(Json{{"equal", list.empty()}, {"fields", list}});
  } else {
    for (const Json& entry : list) {
      std::cout << entry["name"].get<std::string>() << ": "
                << printable(entry["a"].get<std::string>()) << " -> "
                << printable(entry["b"].get<std::string>()) << '\n';
    }
    std::cout << (list.empty() ? "Nincs eltérés." : std::to_string(list.size()) + " eltérés.")
              << '\n';
  }
  return list.empty() ? done : different;
}

}  // namespace monitra::ctl
