#include "wire/comparison.h"

#include <algorithm>
#include <cstdint>

#include "wire/message_text.h"

namespace monitra::wire {

namespace {

using Messages = std::deque<Message>;

/// What stays between a common beginning and a common end.
struct Rest {
  std::size_t from;
  std::size_t to;

  std::size_t size() const { return to - from; }
};

/// Pairs what is left of both, message by message from the front.
void pairInOrder(Rest first, Rest second, std::vector<Pairing>& pairs, const Messages& a,
                 const Messages& b) {
  for (; first.size() > 0 || second.size() > 0;) {
    Pairing pair;
    if (first.size() > 0) pair.first = first.from++;
    if (second.size() > 0) pair.second = second.from++;
    pair.same = pair.first && pair.second && a[*pair.first].bytes == b[*pair.second].bytes;
    pairs.push_back(pair);
  }
}

/// The longest common sequence of both rests tells which messages are the same ones; between them
/// the others go side by side.
void pairByContent(Rest first, Rest second, std::vector<Pairing>& pairs, const Messages& a,
                   const Messages& b) {
  const std::size_t columns = second.size() + 1;
  std::vector<std::uint16_t> longest((first.size() + 1) * columns, 0);
  const auto at = [&](std::size_t i, std::size_t j) -> std::uint16_t& {
    return longest[i * columns + j];
  };
  const auto same = [&](std::size_t i, std::size_t j) {
    return a[first.from + i].bytes == b[second.from + j].bytes;
  };
  for (std::size_t i = first.size(); i-- > 0;) {
    for (std::size_t j = second.size(); j-- > 0;) {
      at(i, j) = same(i, j) ? static_cast<std::uint16_t>(at(i + 1, j + 1) + 1)
                            : std::max(at(i + 1, j), at(i, j + 1));
    }
  }
  Rest one{first.from, first.from};
  Rest other{second.from, second.from};
  while (one.to < first.to && other.to < second.to) {
    const std::size_t i = one.to - first.from;
    const std::size_t j = other.to - second.from;
    if (same(i, j)) {
      pairInOrder(one, other, pairs, a, b);
      pairs.push_back({one.to++, other.to++, true});
      one.from = one.to;
      other.from = other.to;
    } else {
      at(i + 1, j) >= at(i, j + 1) ? ++one.to : ++other.to;
    }
  }
  pairInOrder({one.from, first.to}, {other.from, second.to}, pairs, a, b);
}

}  // namespace

std::vector<Pairing> compare(const Messages& first, const Messages& second) {
  constexpr std::size_t mostCells = std::size_t{1} << 24;
  std::vector<Pairing> pairs;
  Rest one{0, first.size()};
  Rest other{0, second.size()};
  while (one.size() > 0 && other.size() > 0 && first[one.from].bytes == second[other.from].bytes) {
    pairs.push_back({one.from++, other.from++, true});
  }
  std::size_t ends = 0;
  while (one.size() > 0 && other.size() > 0 &&
         first[one.to - 1].bytes == second[other.to - 1].bytes) {
    --one.to;
    --other.to;
    ++ends;
  }
  const bool fits = (one.size() + 1) <= mostCells / (other.size() + 1);
  fits ? pairByContent(one, other, pairs, first, second)
       : pairInOrder(one, other, pairs, first, second);
  for (std::size_t n = 0; n < ends; ++n) pairs.push_back({one.to + n, other.to + n, true});
  return pairs;
}

std::string differenceText(const Pairing& pair, const Messages& first, const Messages& second) {
  if (pair.same) return {};
  if (!pair.second) return "Csak az elsőben: " + meaning(first[*pair.first]);
  if (!pair.first) return "Csak a másodikban: " + meaning(second[*pair.second]);
  const Message& one = first[*pair.first];
  const Message& other = second[*pair.second];
  if (one.kind == Message::Kind::Setup && other.kind == Message::Kind::Setup) {
    return "Setup: " + setupDifference(one.bytes, other.bytes);
  }
  return meaning(one) + " ↔ " + meaning(other);
}

}  // namespace monitra::wire
