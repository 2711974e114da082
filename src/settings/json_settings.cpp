#include "settings/json_settings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <system_error>

namespace monitra::settings {

namespace {

using Json = nlohmann::json;

Json load(const std::string& path) {
  std::ifstream file(path);
  Json settings = file ? Json::parse(file, nullptr, false) : Json::object();
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
  std::filesystem::create_directories(folder_, error);
  if (store(fresh, settings)) {
    std::filesystem::rename(fresh, file, error);
  } else {
    std::filesystem::remove(fresh, error);
  }
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
