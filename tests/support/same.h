#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace monitra::support {

/// What happened, in order, an entry an event.
using Journal = std::vector<std::string>;

/// Whether two journals are equal; where they aren't, their first difference and what stands
/// around it. Given and row names go behind it: EXPECT_TRUE(same(seen, expected)) << row.
inline testing::AssertionResult same(const Journal& seen, const Journal& expected) {
  if (seen == expected) return testing::AssertionSuccess();
  const auto differ = std::ranges::mismatch(seen, expected);
  const auto first = static_cast<std::size_t>(differ.in1 - seen.begin());
  constexpr std::size_t ahead = 3, behind = 8;
  const auto around = [&](const Journal& journal) {
    std::string text;
    for (std::size_t n = first - std::min(first, ahead);
         n < std::min(journal.size(), first + behind); ++n) {
      text += (n == first ? "\n  > " : "\n    ") + std::to_string(n) + ": " + journal[n];
    }
    return text + (journal.size() <= first + behind ? "\n    (end)" : "\n    ...");
  };
  return testing::AssertionFailure() << "differ at entry " << first << ", seen:" << around(seen)
                                     << "\nexpected:" << around(expected) << "\n";
}

}  // namespace monitra::support
