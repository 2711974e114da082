#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace monitra::support {

using Steps = std::vector<std::uint32_t>;

struct FuzzFailure {
  std::size_t at;       ///< the step that failed
  std::string message;  ///< what was wrong with it
  std::string told;     ///< the names of all steps up to it
};

template <class World>
std::optional<FuzzFailure> play(const Steps& steps, long& reached) {
  World world;
  std::string told;
  for (std::size_t n = 0; n < steps.size(); ++n) {
    std::string name;
    const testing::AssertionResult result = world.act(steps[n], name);
    told += "  " + name + "\n";
    if (!result) return FuzzFailure{n, result.message(), told};
  }
  reached += world.reached;
  return {};
}

/// The shortest part of a failing sequence that was found to fail too.
template <class World>
FuzzFailure shrunk(Steps steps, FuzzFailure failure) {
  long ignored = 0;
  steps.resize(failure.at + 1);
  for (std::size_t cut = steps.size() / 2; cut > 0; cut /= 2) {
    for (std::size_t at = 0; at + cut <= steps.size();) {
      Steps shorter = steps;
      const auto from = shorter.begin() + static_cast<std::ptrdiff_t>(at);
      shorter.erase(from, from + static_cast<std::ptrdiff_t>(cut));
      if (auto again = play<World>(shorter, ignored)) {
        failure = *again;
        steps = shorter;
        steps.resize(failure.at + 1);
      } else {
        at += cut;
      }
    }
  }
  return failure;
}

/// Plays so many rounds of random steps, each in a new World, which has
///   AssertionResult act(uint32_t step, string& name): does one step, chosen by these 32 bits and
///     nothing else, tells its name and whether all is right behind it;
///   long reached: how often it got where the fuzz is about.
/// Gives the sum of the latter. At a failure it tells the seed and the shortest sequence.
template <class World>
long fuzz(unsigned seed, int rounds, std::size_t length) {
  std::mt19937 random(seed);
  long reached = 0;
  for (int round = 0; round < rounds; ++round) {
    Steps steps(length);
    for (std::uint32_t& step : steps) step = static_cast<std::uint32_t>(random());
    if (const auto failure = play<World>(steps, reached)) {
      const FuzzFailure least = shrunk<World>(steps, *failure);
      ADD_FAILURE() << "seed " << seed << ", round " << round << ", step " << failure->at
                    << "; the shortest sequence that fails has " << least.at + 1 << " steps:\n"
                    << least.told << least.message;
      break;
    }
  }
  return reached;
}

}  // namespace monitra::support
