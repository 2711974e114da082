#pragma once

#include <string>

#include "platform/settings_store.h"

namespace monitra::settings {

/// Settings in one JSON file for each application: an object of sections, each an object of texts.
/// A file that is missing or damaged counts as empty. A save replaces the file as a whole, so that
/// none is ever left half written, and keeps a damaged one beside it as "*.bad".
class JsonSettings : public platform::SettingsStore {
 public:
  explicit JsonSettings(std::string folder) : folder_(std::move(folder)) {}

  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override;
  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) override;

  /// Whether the application has a file of which nothing can be used.
  bool isDamaged(const std::string& application) const;

 private:
  std::string path(const std::string& application) const;

  std::string folder_;
};

/// The user's folder for the program's settings: "monitra" in $XDG_CONFIG_HOME or ~/.config.
std::string userSettingsFolder();

}  // namespace monitra::settings
