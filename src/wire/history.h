#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

#include "wire/levels.h"

namespace monitra::wire {

/// The changes of some wires in the order of time. Its room is bounded: at its end the oldest block
/// of changes goes, as a whole. Nothing that is kept is ever moved, so an append takes no longer
/// with a long history than with a short one.
class History {
 public:
  /// Number of a change since the very first one, which keeps it when older ones go.
  using Index = std::int64_t;

  static constexpr Index blockSize = Index{1} << 14;
  /// Blocks of a live history: 4.2 million changes in 42 MB, which is 17 minutes of the generator
  /// at 1000 steps a second with four changes a step.
  static constexpr std::size_t liveBlocks = 256;
  static constexpr std::size_t unbounded = std::numeric_limits<std::size_t>::max();

  /// At least two blocks.
  explicit History(std::size_t blocks = liveBlocks);

  /// The time must not be before the last one's.
  void append(Time time, Levels levels);

  /// Makes the room for the next block ahead of the append that will need it, so that this one
  /// needn't. To be called now and then, more often than a block fills.
  void prepare();

  bool empty() const { return end_ == 0; }
  Index first() const { return first_; }  ///< the oldest one that is kept
  Index end() const { return end_; }      ///< behind the newest
  Time startTime() const { return empty() ? Time{} : time(first_); }

  /// The following take indices of changes that are kept.
  Time time(Index index) const { return blockOf(index).times[offset(index)]; }
  Levels levels(Index index) const { return blockOf(index).levels[offset(index)]; }
  /// The wires that the change has moved; none for the very first one.
  Levels toggled(Index index) const { return levels(index) ^ levelsBefore(index); }

  /// The first change behind a time; end() if there is none.
  Index firstAfter(Time time) const;
  /// The wires that any of the changes from one to ahead of another has moved.
  Levels toggled(Index from, Index to) const;
  /// The first change from one on that moves any of the wires; end() if there is none.
  Index nextToggle(Levels wires, Index from) const;
  /// The last change ahead of one that moves any of the wires; first() - 1 if there is none.
  Index previousToggle(Levels wires, Index before) const;

  std::size_t bytes() const;  ///< of memory

 private:
  static constexpr Index groupSize = 256;

  struct Block {
    std::array<Time, blockSize> times;
    std::array<Levels, blockSize> levels;
    std::array<Levels, blockSize / groupSize> groups;  ///< wires moved in each
    Levels before;                                     ///< its first change
    Levels toggled;                                    ///< wires moved in all of it
  };

  static std::size_t offset(Index index) { return static_cast<std::size_t>(index % blockSize); }
  std::size_t slot(Index index) const {
    return static_cast<std::size_t>(index / blockSize) % limit_;
  }
  const Block& blockOf(Index index) const { return *blocks_[slot(index)]; }
  Levels levelsBefore(Index index) const {
    const Block& block = blockOf(index);
    return offset(index) == 0 ? block.before : block.levels[offset(index) - 1];
  }
  void addBlock();
  void beginBlock(Levels levels);
  Index stride(Index index, Index to, Levels wires, Levels* moved) const;

  std::size_t limit_;
  std::vector<std::unique_ptr<Block>> blocks_;
  Index first_ = 0;
  Index end_ = 0;
};

}  // namespace monitra::wire
