#include <algorithm>
#include <stdexcept>

#include "wire/trace.h"
#include "wire/vcd_reader.h"
#include "wire/vcd_writer.h"

namespace {

using namespace monitra;
using namespace std::chrono_literals;

/// What came, with the bytes that begin no message in one, whatever is between them.
struct Told : std::vector<std::vector<std::uint8_t>> {
  void add(int kind, const std::vector<std::uint8_t>& bytes) {
    const bool isStray = kind == 2 && wire::messageLength(bytes.front()) == 0;
    if (!isStray || !wasStray) push_back({static_cast<std::uint8_t>(kind)});
    back().insert(back().end(), bytes.begin(), bytes.end());
    wasStray = isStray;
  }
  bool wasStray = false;
};

void check(bool right, const char* what) {
  if (!right) throw std::runtime_error(what);
}

Told toldBy(const wire::Trace& trace) {
  Told told;
  wire::Time last{};
  const auto& phases = trace.decoder().shortPhases();
  std::size_t inMessages = 0;
  for (const wire::Message& message : trace.decoder().messages()) {
    told.add(static_cast<int>(message.kind), message.bytes);
    check(last <= message.start && message.start <= message.end, "WRONG: the order of messages");
    last = message.end;
    // One without a length may lie where two messages meet.
    const auto isInside = [&](const wire::Phase& phase) {
      return message.start <= phase.end && phase.end <= message.end;
    };
    check(message.shortPhases <= std::ranges::count_if(phases, isInside),
          "WRONG: the places of short phases");
    inMessages += static_cast<std::size_t>(message.shortPhases);
  }
  check(inMessages == phases.size(), "WRONG: the number of short phases");
  return told;
}

}  // namespace

/// Any bytes as levels of data, clock and a step and as times between them, which a controller
/// hears beside; and as a dump, alone and amid one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  wire::Layout layout = wire::plainLayout({"SDA", "SCL", "S"});
  layout.lines.steps = 4;
  layout.wiring.stepBits[0] = 2;
  wire::Trace trace(layout, 2);
  controller::VirtualController controller(layout.wiring);
  Told expected;
  controller.received = [&](const controller::Received& message) {
    expected.add(static_cast<int>(message.kind), message.bytes);
  };
  wire::Time now{}, clock{};
  for (std::size_t n = 0; n < size; ++n) {
    const int levels = data[n] & 7, wait = data[n] >> 3;
    now += wait < 28 ? wait * 100us : (wait - 27) * 70ms;
    if (now - clock > 200ms) controller.pause();
    if (n > 0 && ((data[n] ^ data[n - 1]) & 2) != 0) clock = now;
    controller.dataPins(static_cast<std::uint8_t>(levels));
    trace.take(now, static_cast<wire::Levels>(levels), 7);
  }
  controller.pause();
  trace.finish(now);
  check(toldBy(trace) == expected, "WRONG: the messages");

  std::string dump;
  wire::writeVcd(trace, [&](std::string_view piece) { return !dump.append(piece).empty(); });
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  dump.insert(size * 31 % (dump.size() + 1), bytes);
  for (const std::string_view text : {bytes, std::string_view(dump)}) {
    for (const char* name : {"", "S"}) {
      const wire::ReadTrace read = wire::readVcd(text, {*name ? "SDA" : "", *name ? "SCL" : ""});
      check(read.trace || !read.fault.empty(), "WRONG: neither a trace nor a fault");
      if (read.trace) toldBy(*read.trace);
    }
  }
  return 0;
}
