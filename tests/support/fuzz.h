#pragma once

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace monitra::support {

using Steps = std::vector<std::uint32_t>;

struct Played {
  std::size_t done;       ///< steps ahead of the one that failed
  long reached;           ///< what the world tells of it
  std::string told = {};  ///< the steps up to the one that failed, and what was wrong
};

template <class World>
Played play(const Steps& steps) {
  World world;
  std::string told;
  for (std::size_t n = 0; n < steps.size(); ++n) {
    std::string name;
    const testing::AssertionResult result = world.act(steps[n], name);
    told += "  " + name + "\n";
    if (!result) return {n, world.reached, told + result.message()};
  }
  return {steps.size(), world.reached};
}

/// Plays so many rounds of random steps, each in a new World, which has
///   AssertionResult act(uint32_t step, string& name): does one step, chosen by these 32 bits and
///     nothing else, tells its name and whether all is right behind it;
///   long reached: how often it got where the fuzz is about.
/// Gives the sum of the latter. At a failure it tells the seed and the shortest part of the round
/// that was found to fail too.
template <class World>
long fuzz(unsigned seed, int rounds, std::size_t length) {
  std::mt19937 random(seed);
  long reached = 0;
  for (int round = 0; round < rounds; ++round) {
    Steps steps(length);
    std::ranges::generate(steps, [&random] { return static_cast<std::uint32_t>(random()); });
    Played failed = play<World>(steps);
    reached += failed.reached;
    if (failed.done == length) continue;
    for (std::ptrdiff_t cut = std::ssize(steps); cut > 0; cut /= 2) {
      for (std::ptrdiff_t at = 0; at + cut <= std::ssize(steps);) {
        Steps shorter = steps;
        shorter.erase(shorter.begin() + at, shorter.begin() + at + cut);
        const Played again = play<World>(shorter);
        const bool fails = again.done < shorter.size();
        if (!fails) at += cut;
        if (fails) (failed = again, steps = shorter).resize(again.done + 1);
      }
    }
    ADD_FAILURE() << "seed " << seed << ", round " << round
                  << "; the shortest sequence that fails:\n"
                  << failed.told;
    return reached;
  }
  return reached;
}

}  // namespace monitra::support
