#include "settings/json_settings.h"

#include <cerrno>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>

#include "settings/small_file.h"
#include "settings/user_folder.h"

namespace monitra::settings {

namespace {

using Json = nlohmann::json;

/// What a file holds; an object of settings only if it is usable.
struct Stored {
  enum class Kind { None, Usable, Damaged, Unreadable };
  Kind kind;
  Json settings = Json::object();
};

Stored load(const std::string& path) {
  std::string content;
  switch (readSmallFile(path, content)) {
    case 0:
      break;
    case ENOENT:
      return {Stored::Kind::None};
    case EFBIG:
    case EINVAL:
      return {Stored::Kind::Damaged};
    default:
      return {Stored::Kind::Unreadable};
  }
  // Settings are two levels deep; what is far deeper would exhaust the stack.
  constexpr int deepest = 16;
  const auto shallow = [](int depth, Json::parse_event_t, const Json&) { return depth < deepest; };
  Json settings = Json::parse(content, shallow, false);
  if (!settings.is_object()) return {Stored::Kind::Damaged};
  return {Stored::Kind::Usable, std::move(settings)};
}

/// Where the file really is, so that a link to it stays one.
std::string behindLinks(const std::string& path) {
  std::error_code error;
  const std::filesystem::path real = std::filesystem::canonical(path, error);
  return error ? path : real.string();
}

}  // namespace

std::string JsonSettings::GetSetting(const std::string& application, const std::string& section,
                                     const std::string& key, const std::string& fallback) {
  const Stored stored = load(path(application));
  missed_ = missed_ || stored.kind == Stored::Kind::Unreadable;
  const Json& settings = stored.settings;
  const auto entries = settings.find(section);
  if (entries == settings.end() || !entries->is_object()) return fallback;
  const auto entry = entries->find(key);
  return entry != entries->end() && entry->is_string() ? entry->get<std::string>() : fallback;
}

void JsonSettings::SaveSettings(const std::string& application, const std::string& section,
                                const Entries& entries) {
  if (folder_.empty()) return;
  std::error_code error;
  std::filesystem::create_directories(folder_, error);
  const FolderLock lock(folder_);
  const std::string file = behindLinks(path(application));
  Stored stored = load(file);
  if (missed_ || stored.kind == Stored::Kind::Unreadable) return;
  Json& values = stored.settings[section];
  if (!values.is_object()) values = Json::object();
  for (const auto& [key, value] : entries) values[key] = value;
  if (stored.kind == Stored::Kind::Damaged) std::filesystem::rename(file, file + ".bad", error);
  replaceFile(file, stored.settings.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

bool JsonSettings::isDamaged(const std::string& application) {
  const Stored::Kind kind = load(path(application)).kind;
  return missed_ || kind == Stored::Kind::Damaged || kind == Stored::Kind::Unreadable;
}

std::string JsonSettings::path(const std::string& application) const {
  return folder_.empty() ? std::string{} : folder_ + "/" + application + ".json";
}

std::string userSettingsFolder() {
  return userFolder("XDG_CONFIG_HOME", ".config");
}

}  // namespace monitra::settings
