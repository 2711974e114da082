#include "wire/history.h"

#include <algorithm>

namespace monitra::wire {

History::History(std::size_t blocks) : limit_(std::max<std::size_t>(blocks, 2)) {
  blocks_.reserve(std::min(limit_, liveBlocks));
}

void History::append(Time time, Levels levels) {
  const std::size_t at = offset(end_);
  if (at == 0) beginBlock(levels);
  Block& block = *blocks_[slot(end_)];
  const Levels moved = levels ^ (at == 0 ? block.before : block.levels[at - 1]);
  Levels& group = block.groups[at / groupSize];
  group = at % groupSize == 0 ? moved : static_cast<Levels>(group | moved);
  block.toggled |= moved;
  block.times[at] = time;
  block.levels[at] = levels;
  ++end_;
}

void History::beginBlock(Levels levels) {
  const Levels before = end_ == 0 ? levels : this->levels(end_ - 1);
  if (slot(end_) >= blocks_.size()) addBlock();
  Block& block = *blocks_[slot(end_)];
  block.before = before;
  block.toggled = 0;
  const auto kept = static_cast<Index>(std::min(limit_, blocks_.size()));
  first_ = std::max(first_, (end_ / blockSize + 1 - kept) * blockSize);
}

void History::prepare() {
  const std::size_t needed = slot(end_) + (offset(end_) == 0 ? 0 : 1);
  if (needed >= blocks_.size() && blocks_.size() < limit_) addBlock();
}

void History::addBlock() {
  // Zeroes it, too, so that its pages are there before anybody waits for them.
  blocks_.push_back(std::make_unique<Block>());
}

History::Index History::firstAfter(Time time) const {
  Index low = first_;
  Index high = end_;
  while (low < high) {
    const Index middle = low + (high - low) / 2;
    this->time(middle) <= time ? low = middle + 1 : high = middle;
  }
  return low;
}

/// How many changes from one on, but none from another on, move none of the wires as a block or
/// group tells; else one. What they move is added to moved.
History::Index History::stride(Index index, Index to, Levels wires, Levels* moved) const {
  const Block& block = blockOf(index);
  const Index rest = to - index;
  const auto skips = [&](Index size, Levels toggled) {
    if (index % size != 0 || rest < size || (toggled & wires) != 0) return false;
    *moved |= toggled;
    return true;
  };
  if (skips(blockSize, block.toggled)) return blockSize;
  if (skips(groupSize, block.groups[offset(index) / groupSize])) return groupSize;
  *moved |= toggled(index);
  return 1;
}

Levels History::toggled(Index from, Index to) const {
  Levels moved = 0;
  while (from < to) from += stride(from, to, 0, &moved);
  return moved;
}

History::Index History::nextToggle(Levels wires, Index from) const {
  while (from < end_) {
    Levels moved = 0;
    const Index skipped = stride(from, end_, wires, &moved);
    if (skipped == 1 && (moved & wires) != 0) break;
    from += skipped;
  }
  return from;
}

History::Index History::previousToggle(Levels wires, Index before) const {
  while (before > first_) {
    const Index last = before - 1;
    const Block& block = blockOf(last);
    if (before % blockSize == 0 && (block.toggled & wires) == 0) {
      before -= blockSize;
    } else if (before % groupSize == 0 && (block.groups[offset(last) / groupSize] & wires) == 0) {
      before -= groupSize;
    } else if ((toggled(last) & wires) != 0) {
      return last;
    } else {
      before = last;
    }
  }
  return first_ - 1;
}

std::size_t History::bytes() const {
  return blocks_.size() * sizeof(Block);
}

}  // namespace monitra::wire
