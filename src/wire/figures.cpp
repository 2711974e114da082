#include "wire/figures.h"

#include <algorithm>

namespace monitra::wire {

std::optional<double> Width::hertz() const {
  if (!period || period->count() == 0) return {};
  return 1e9 / static_cast<double>(period->count());
}

std::optional<Width> widthAt(const History& history, int wire, Time at) {
  const Levels mask = wireMask(wire);
  const History::Index behind = history.firstAfter(at);
  const History::Index from = history.previousToggle(mask, behind);
  const History::Index to = history.nextToggle(mask, behind);
  if (from < history.first() || to >= history.end()) return {};
  Width found{history.time(from), history.time(to), (history.levels(from) & mask) != 0, {}};
  const History::Index next = history.nextToggle(mask, to + 1);
  const History::Index previous = history.previousToggle(mask, from);
  if (next < history.end()) {
    found.period = history.time(next) - found.from;
  } else if (previous >= history.first()) {
    found.period = found.to - history.time(previous);
  }
  return found;
}

Widths widthsBetween(const History& history, int wire, Time from, Time to) {
  const Levels mask = wireMask(wire);
  Widths widths;
  History::Index index = history.nextToggle(mask, history.firstAfter(from - Time(1)));
  if (index >= history.end() || history.time(index) > to) return widths;
  const Time first = history.time(index);
  Time last = first;
  for (;;) {
    index = history.nextToggle(mask, index + 1);
    if (index >= history.end() || history.time(index) > to) break;
    const Time width = history.time(index) - last;
    last = history.time(index);
    widths.least = widths.count == 0 ? width : std::min(widths.least, width);
    widths.greatest = std::max(widths.greatest, width);
    ++widths.count;
  }
  if (widths.count > 0) widths.mean = (last - first) / widths.count;
  return widths;
}

}  // namespace monitra::wire
