#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <utility>

#include "support/rows.h"

namespace monitra::support {

/// Plays a table of steps in order. A row has a step's name, where and with what it is done, how
/// many milliseconds behind the one before it, and all that it tells; then how often, if not once.
struct Steps : testing::Test {
  using Step = std::function<void(const std::string& where, const std::string& what)>;

  void tell(const std::string& entry) { told += (told.empty() ? "" : ", ") + entry; }
  static int number(const std::string& hex) { return hex.empty() ? 0 : std::stoi(hex, {}, 16); }

  void play(const std::string& table, const std::map<std::string, Step>& steps) {
    for (const Row& row : rows(table)) {
      for (int n = row.size() > 5 ? std::stoi(row[5]) : 1; n > 0; --n) {
        now += std::chrono::milliseconds(std::atoi(row.at(3).c_str()));
        steps.at(row[0])(row[1], row[2]);
        EXPECT_EQ(std::exchange(told, {}), row.at(4)) << table << testing::PrintToString(row);
      }
    }
  }

  std::string told;
  std::chrono::nanoseconds now = std::chrono::hours(5);
};

}  // namespace monitra::support
