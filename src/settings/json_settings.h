#pragma once

#include <string>

#include "platform/settings_store.h"

namespace monitra::settings {

/// Settings in one JSON file for each application: an object of sections, each an object of texts.
/// A save replaces the file as a whole, so that none is ever left half written, under a lock that
/// all programs share; a link to the file stays one. A file of something else is kept beside the
/// new one as "*.bad"; one that can't be read is left alone, and nothing stored from then on.
class JsonSettings : public platform::SettingsStore {
 public:
  /// In an empty folder name nothing is found or stored.
  explicit JsonSettings(std::string folder) : folder_(std::move(folder)) {}

  std::string GetSetting(const std::string& application, const std::string& section,
                         const std::string& key, const std::string& fallback) override;
  void SaveSettings(const std::string& application, const std::string& section,
                    const Entries& entries) override;
  bool isDamaged(const std::string& application) override;

 private:
  std::string path(const std::string& application) const;

  std::string folder_;
  bool missed_ = false;  ///< a value could not be read that may be there: what is shown isn't it
};

/// The user's folder for the program's settings: "monitra" in $XDG_CONFIG_HOME or in .config of the
/// home that $HOME or else the system names; empty for a user without a home.
std::string userSettingsFolder();

}  // namespace monitra::settings
