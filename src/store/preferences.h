#pragma once

#include <array>
#include <string>

#include "platform/settings_store.h"

namespace monitra::store {

/// The workplace's settings, kept per user and per name of the executable. Every read goes to the
/// store.
class Preferences {
 public:
  /// The store must outlive the object.
  Preferences(platform::SettingsStore& store, std::string application)
      : store_(store), application_(std::move(application)) {}

  /// Index of the selected port, 0 to 2; 0 for a stored number outside the list.
  int lptIndex() const;
  /// Pulse rate as text, unchecked.
  std::string seb() const;
  /// Whether the direction of axis n, 0 to 2, is inverted.
  bool inverted(int n) const;
  /// Whether the board is V4.x; V3.2 otherwise.
  bool boardV4x() const;

  /// How far what is stored can be relied on: a wrong board moves the wrong pins.
  enum class Standing { Sound, NoBoard, Damaged };
  Standing standing() const;

  /// At the moment of the choice.
  void saveBoard(bool v4x);

  /// At shutdown: all but the board.
  void save(int lptIndex, const std::string& seb, const std::array<bool, 3>& inverted);

 private:
  std::string get(const std::string& key, const std::string& fallback) const;

  platform::SettingsStore& store_;
  std::string application_;
};

}  // namespace monitra::store
