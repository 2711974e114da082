#include <gtest/gtest.h>
#include <numeric>
#include <random>

#include "support/scratch.h"

using Fuzzer = int(const std::uint8_t* data, std::size_t size);
extern "C" Fuzzer lap_fuzz, pwm_fuzz, hex_fuzz, preferences_fuzz, wire_fuzz;

/// Plays each file of the corpus as it is, and with more and more lines of all of them put in.
static void play(const std::string& name, Fuzzer* fuzzer) {
  using Lines = std::vector<std::string>;
  std::map<std::filesystem::path, Lines> corpus;
  Lines all;
  for (const auto& entry : std::filesystem::directory_iterator(MONITRA_CORPUS + name)) {
    std::ifstream file(entry.path(), std::ios::binary);
    Lines& lines = corpus[entry.path()];
    for (std::string line; std::getline(file, line);) lines.push_back(line + "\n");
  }
  for (const auto& [path, lines] : corpus) all.insert(all.end(), lines.begin(), lines.end());
  std::mt19937 random(1);
  for (const int more : {0, 1, 5, 25, 100}) {
    for (auto [path, lines] : corpus) {
      for (int n = 0; n < more; ++n) {
        lines.insert(lines.begin() + random() % (lines.size() + 1), all[random() % all.size()]);
      }
      const auto bytes = std::accumulate(lines.begin(), lines.end(), std::string());
      fuzzer(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
  }
}

TEST(Fuzz, HoldsWithItsCorpusAndWithMixedLinesOfIt) {
  play("lap", lap_fuzz);
  play("pwm", pwm_fuzz);
  play("hex", hex_fuzz);
  play("preferences", preferences_fuzz);
  play("wire", wire_fuzz);
}
