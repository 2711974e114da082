#pragma once

#include <string>

namespace monitra::platform {

/// Per-user settings that outlive the program. Every value is a text.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or the default where the entry doesn't exist.
  virtual std::string GetSetting(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& fallback) = 0;

  /// A setting that can't be stored is lost without a message.
  virtual void SaveSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value) = 0;
};

}  // namespace monitra::platform
