#pragma once

#include <string>
#include <utility>
#include <vector>

namespace monitra::platform {

/// Per-user settings that outlive the program. Every value is a text.
class SettingsStore {
 public:
  using Entries = std::vector<std::pair<std::string, std::string>>;  ///< keys and values

  virtual ~SettingsStore() = default;

  /// The stored text, or the default where the entry doesn't exist.
  virtual std::string GetSetting(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& fallback) = 0;

  /// Stores all of the entries or none. What other programs store at the same moment stays too, as
  /// does every other entry. Settings that can't be stored are lost without a message.
  virtual void SaveSettings(const std::string& application, const std::string& section,
                            const Entries& entries) = 0;

  void SaveSetting(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) {
    SaveSettings(application, section, {{key, value}});
  }

  /// Whether something is stored for the application of which nothing can be used.
  virtual bool isDamaged(const std::string& /*application*/) { return false; }
};

}  // namespace monitra::platform
