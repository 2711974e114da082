#include "wire/bits.h"

namespace monitra::wire {

std::vector<Bit> bitsOf(const History& history, const Message& message) {
  const Levels clock = wireMask(message.lines.clock);
  std::vector<Bit> bits;
  History::Index index = history.nextToggle(clock, history.firstAfter(message.start - Time(1)));
  for (; index < history.end() && history.time(index) <= message.end;
       index = history.nextToggle(clock, index + 1)) {
    if ((history.levels(index) & clock) == 0) continue;
    const Time time = history.time(index);
    if (!bits.empty()) bits.back().end = time;
    bits.push_back(
        {time, message.end, (history.levels(index) & wireMask(message.lines.data)) != 0});
  }
  return bits;
}

}  // namespace monitra::wire
