#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "support/scratch.h"

extern "C" int lap_fuzz(const std::uint8_t*, std::size_t),
    pwm_fuzz(const std::uint8_t*, std::size_t), hex_fuzz(const std::uint8_t*, std::size_t),
    preferences_fuzz(const std::uint8_t*, std::size_t);

namespace {

using Lines = std::vector<std::string>;

/// Plays the files of a corpus, and some inputs made of a file with lines of all of them put in and
/// characters altered. What doesn't hold is thrown.
void play(const std::string& name, decltype(lap_fuzz)& fuzzer) {
  std::map<std::filesystem::path, Lines> corpus;
  Lines all;
  for (const auto& entry : std::filesystem::directory_iterator(MONITRA_CORPUS + name)) {
    std::ifstream file(entry.path(), std::ios::binary);
    for (std::string line; std::getline(file, line);) corpus[entry.path()].push_back(line + "\n");
  }
  const auto playLines = [&](const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line;
    fuzzer(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  };
  for (const auto& [path, lines] : corpus) {
    playLines(lines);
    all.insert(all.end(), lines.begin(), lines.end());
  }
  std::mt19937 random(1);
  const auto below = [&random](std::size_t end) { return static_cast<long>(random() % end); };
  for (int n = 0; n < 100; ++n) {
    Lines lines = std::next(corpus.begin(), below(corpus.size()))->second;
    for (long changes = below(100); changes > 0; --changes) {
      const auto at =
          lines.insert(lines.begin() + below(lines.size()), *(all.begin() + below(all.size())));
      if (below(4) == 0) *(at->begin() + below(at->size())) = static_cast<char>('+' + below(20));
    }
    playLines(lines);
  }
}

TEST(Fuzz, Lap) {
  play("lap", lap_fuzz);
}
TEST(Fuzz, Pwm) {
  play("pwm", pwm_fuzz);
}
TEST(Fuzz, Hex) {
  play("hex", hex_fuzz);
}
TEST(Fuzz, Preferences) {
  play("preferences", preferences_fuzz);
}

}  // namespace
