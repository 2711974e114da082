#include "settings/json_settings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <system_error>

namespace monitra::settings {

namespace {

using Json = nlohmann::json;

/// The file's content, or something that is no object if it can't be made out.
Json read(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path).rdbuf();
  return Json::parse(content.str(), nullptr, false);
}

/// The usable settings of a file.
Json load(const std::string& path) {
  Json settings = read(path);
  return settings.is_object() ? settings : Json::object();
}

bool store(const std::string& path, const Json& settings) {
  std::ofstream file(path, std::ios::trunc);
  file << settings.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  file.close();
  return file.good();
}

}  // namespace

std::string JsonSettings::GetSetting(const std::string& application, const std::string& section,
                                     const std::string& key, const std::string& fallback) {
  const Json settings = load(path(application));
  const auto entries = settings.find(section);
  if (entries == settings.end() || !entries->is_object()) return fallback;
  const auto entry = entries->find(key);
  return entry != entries->end() && entry->is_string() ? entry->get<std::string>() : fallback;
}

void JsonSettings::SaveSetting(const std::string& application, const std::string& section,
                               const std::string& key, const std::string& value) {
  const std::string file = path(application);
  const std::string fresh = file + ".new";
  Json settings = load(file);
  if (!settings[section].is_object()) settings[section] = Json::object();
  settings[section][key] = value;
  std::error_code error;
  if (isDamaged(application)) std::filesystem::rename(file, file + ".bad", error);
  std::filesystem::create_directories(folder_, error);
  if (store(fresh, settings)) {
    std::filesystem::rename(fresh, file, error);
  } else {
    std::filesystem::remove(fresh, error);
  }
}

bool JsonSettings::isDamaged(const std::string& application) const {
  const std::string file = path(application);
  std::error_code error;
  return std::filesystem::exists(file, error) && !read(file).is_object();
}

std::string JsonSettings::path(const std::string& application) const {
  return folder_ + "/" + application + ".json";
}

std::string userSettingsFolder() {
  const char* const config = std::getenv("XDG_CONFIG_HOME");
  if (config != nullptr && config[0] == '/') return std::string(config) + "/monitra";
  const char* const home = std::getenv("HOME");
  return std::string(home != nullptr ? home : "") + "/.config/monitra";
}

}  // namespace monitra::settings
