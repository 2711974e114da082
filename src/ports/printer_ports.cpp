#include "ports/printer_ports.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace monitra::ports {

namespace {

using platform::PortState;
using Kind = PortState::Kind;

/// The waits inside a transfer are of a millisecond; a user's next action comes later than this.
constexpr std::chrono::milliseconds pauseBetweenUses{100};
/// So often an entry without a port is looked for while only the pulse generator uses it.
constexpr std::chrono::seconds betweenOpenings{1};
/// So often a held port is looked after while it is used.
constexpr std::chrono::milliseconds betweenChecks{10};

bool isEntryAddress(std::int32_t address) {
  return std::ranges::count(entryAddresses, address) > 0;
}

bool isGood(const PortState& state) {
  return state.inUse() || state.kind == Kind::Untried;
}

}  // namespace

std::optional<FoundPort> portFor(std::int32_t entry, std::span<const FoundPort> found,
                                 std::span<const std::int32_t> waiting) {
  const auto own = std::ranges::find(found, entry, &FoundPort::address);
  if (own != found.end()) return *own;
  auto taker = waiting.begin();
  for (const FoundPort& port : found) {
    if (isEntryAddress(port.address)) continue;
    while (taker != waiting.end() &&
           std::ranges::find(found, *taker, &FoundPort::address) != found.end()) {
      ++taker;
    }
    if (taker == waiting.end()) break;
    if (*taker++ == entry) return port;
  }
  return {};
}

PrinterPorts::PrinterPorts(std::vector<PortDriver*> drivers, ControlMemory memory, Clock clock)
    : drivers_(std::move(drivers)),
      memory_(std::move(memory)),
      clock_(std::move(clock)),
      entries_{Entry{entryAddresses[0]}, Entry{entryAddresses[1]}, Entry{entryAddresses[2]}} {
  assert(!drivers_.empty());
}

std::uint8_t PrinterPorts::DlPortReadPortUchar(std::int32_t address) {
  if (Entry* const entry = entryOf(address)) {
    const Register which = address == entry->address ? Register::Data : Register::Control;
    prepare(*entry, which);
    if (entry->port != nullptr) {
      if (const auto value = entry->port->read(which)) return *value;
      lose(*entry);
    }
  }
  return registers_.DlPortReadPortUchar(address);
}

void PrinterPorts::DlPortWritePortUchar(std::int32_t address, std::uint8_t value) {
  registers_.DlPortWritePortUchar(address, value);
  if (Entry* const entry = entryOf(address)) {
    const Register which = address == entry->address ? Register::Data : Register::Control;
    prepare(*entry, which);
    if (entry->port != nullptr) {
      if (which == Register::Control) keepControl(*entry, value & controlLines);
      if (entry->port->write(which, value)) return;
      lose(*entry);
    }
  }
  ++vanished_;
}

PortState PrinterPorts::state(std::int32_t address) {
  Entry* const entry = entryOf(address);
  if (entry == nullptr) return {};
  if (entry->port != nullptr) checkPresence(*entry);
  if (entry->used) return entry->state;
  return findPort(*entry,
                  [](PortDriver& driver, const FoundPort& port) {
                    return Opening{nullptr, driver.look(port)};
                  })
      .state;
}

void PrinterPorts::tryAgain(std::int32_t address) {
  Entry* const entry = entryOf(address);
  if (entry == nullptr) return;
  if (entry->port != nullptr) checkPresence(*entry);
  if (entry->port == nullptr) open(*entry);
}

PrinterPorts::Entry* PrinterPorts::entryOf(std::int32_t address) {
  const auto found = std::ranges::find_if(entries_, [address](const Entry& entry) {
    return entry.address == address || entry.address + controlOffset == address;
  });
  return found == entries_.end() ? nullptr : &*found;
}

/// Looks after the entry's port ahead of an access.
void PrinterPorts::prepare(Entry& entry, Register which) {
  const std::chrono::nanoseconds now = clock_();
  const bool afterPause = now - std::exchange(entry.lastAccess, now) >= pauseBetweenUses;
  const bool atTick = which == Register::Control && now - entry.lastOpening >= betweenOpenings;
  const bool newUse = inMessage_ ? std::exchange(messageStarts_, false) : afterPause || atTick;
  if (entry.port != nullptr && now - entry.lastCheck >= betweenChecks) checkPresence(entry);
  if (entry.port == nullptr && (newUse || !entry.used)) open(entry);
}

void PrinterPorts::open(Entry& entry) {
  const bool first = !std::exchange(entry.used, true);
  Opening opening = findPort(entry, [this, &entry](PortDriver& driver, const FoundPort& port) {
    Opening opened = driver.open(port, memory_.last(port.address));
    if (opened.port != nullptr) entry.chosen = port;
    return opened;
  });
  entry.port = std::move(opening.port);
  entry.lastOpening = entry.lastCheck = clock_();
  become(entry, opening.state, first);
}

/// The one of the ports found that is to serve the entry.
std::optional<FoundPort> PrinterPorts::choose(const Entry& entry,
                                              std::vector<FoundPort> found) const {
  std::vector<std::int32_t> waiting;
  for (const Entry& each : entries_) {
    if (!each.chosen) waiting.push_back(each.address);
    std::erase_if(found, [&entry, &each](const FoundPort& port) {
      const bool isChosen = each.chosen && each.chosen->address == port.address;
      return &each == &entry ? each.chosen && !isChosen : isChosen;
    });
  }
  if (entry.chosen) return found.empty() ? std::nullopt : std::optional(found.front());
  return portFor(entry.address, found, waiting);
}

/// What the first driver that can do it makes of the entry's port; if none can, what the first
/// said.
Opening PrinterPorts::findPort(const Entry& entry, const Reach& reach) {
  std::optional<PortState> first;
  for (PortDriver* const driver : drivers_) {
    const std::vector<FoundPort> found = driver->find();
    const auto port = choose(entry, found);
    Opening opening;
    if (port) {
      opening = reach(*driver, *port);
    } else {
      opening.state = found.empty() ? driver->none() : PortState{.kind = Kind::NoneLeft};
    }
    if (isGood(opening.state)) return opening;
    if (!first) first = opening.state;
    // Whoever has the port must not be disturbed by another way to it.
    if (opening.state.kind == Kind::Busy || opening.state.kind == Kind::Printing) break;
  }
  return {nullptr, *first};
}

void PrinterPorts::checkPresence(Entry& entry) {
  entry.lastCheck = clock_();
  if (!entry.port->present()) lose(entry);
}

void PrinterPorts::lose(Entry& entry) {
  PortState state = entry.state;
  state.kind = Kind::Lost;
  entry.port.reset();
  become(entry, state, false);
}

void PrinterPorts::become(Entry& entry, const PortState& state, bool first) {
  const bool isGone = state.kind == Kind::NoDriver || state.kind == Kind::NoNode ||
                      state.kind == Kind::NoPort || state.kind == Kind::NoneLeft;
  // A port that went away is what there is to say for as long as it stays away.
  if (!first && (entry.state == state || (entry.state.kind == Kind::Lost && isGone))) return;
  entry.state = state;
  if (changed) changed();
}

void PrinterPorts::keepControl(Entry& entry, std::uint8_t value) {
  if (entry.keptControl == value) return;
  entry.keptControl = value;
  memory_.keep(entry.chosen->address, value);
}

}  // namespace monitra::ports
