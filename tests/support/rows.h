#pragma once

#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace monitra::support {

using Row = std::vector<std::string>;

/// The rows below "[table]" in the room's file rows.txt, parted into their columns at each '|'; \n
/// stands for CR LF. Lines that begin with '#' are comments.
inline std::vector<Row> rows(const std::string& table) {
  std::vector<Row> found;
  std::ifstream file(MONITRA_ROWS);
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('[')) inside = line == "[" + table + "]";
    if (!inside || line.empty() || line[0] == '[' || line[0] == '#') continue;
    for (std::size_t at = line.find("\\n"); at != line.npos; at = line.find("\\n")) {
      line.replace(at, 2, "\r\n");
    }
    Row& row = found.emplace_back(1);
    for (const char c : line) c == '|' ? void(row.emplace_back()) : row.back().push_back(c);
  }
  EXPECT_FALSE(found.empty()) << table;
  return found;
}

}  // namespace monitra::support
