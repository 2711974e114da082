#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "link/upload.h"
#include "platform/port_states.h"
#include "wire/recorder.h"
#include "wire/vcd_reader.h"
#include "wire/vcd_writer.h"

/// Measures what the recorder of the pins costs:
///   measure_wire STEPS OUT.vcd  so many steps of the pulse generator at 1000 a second, as fast as
///     they go: median, 99 % quantile and longest of a write and of one through the recorder, in
///     ns; writes above 20 µs, of both; the longest through the recorder if of each write the
///     quickest of three runs counts, which leaves out what the machine did meanwhile; changes and
///     MiB of history; ms until it stands in the file and MiB of that; ms until the file is opened
///     and decoded
namespace {

using namespace monitra;
using Clock = std::chrono::steady_clock;

constexpr std::int32_t dataAddress = 0x378;
constexpr std::int32_t controlAddress = 0x37A;

/// Registers in memory, and a clock that shows when the generator would have come to a write.
struct Fake : platform::PortRegisters, platform::PortStates, platform::Sleeper {
  std::uint8_t DlPortReadPortUchar(std::int32_t address) override {
    return address == dataAddress ? data : control;
  }
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override {
    (address == dataAddress ? data : control) = value;
  }
  platform::PortState state(std::int32_t) override { return {}; }
  void tryAgain(std::int32_t) override {}
  long vanished() const override { return 0; }
  void Sleep(int) override {}
  std::chrono::nanoseconds now() const override {
    // The real clock is read too, since that is part of the cost.
    return time + 0 * Clock::now().time_since_epoch();
  }

  volatile std::uint8_t data = 0;
  volatile std::uint8_t control = 0;
  std::chrono::nanoseconds time{};
};

double milliseconds(Clock::time_point since) {
  return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
}

/// A Setup message, with a pause around it.
void upload(Fake& fake, platform::PortRegisters& registers) {
  constexpr std::chrono::milliseconds pause{300};
  const link::PinMap& pins = link::pcb4xPins;
  fake.time += pause;
  for (const std::uint8_t byte : link::setupMessage({})) {
    for (int n = 0; n < 8; ++n) {
      const int bit = (byte >> n & 1) << pins.SorosAdatBit;
      for (const int value : {bit, bit | link::mask(pins.SorosOrajelBit), bit}) {
        registers.DlPortWritePortUchar(dataAddress, static_cast<std::uint8_t>(value));
        fake.time += std::chrono::microseconds(1010);
      }
    }
  }
  fake.time += pause;
}

/// The writes of the generator, each timed in ns.
template <typename Pass>
std::vector<int> play(Fake& fake, platform::PortRegisters& registers, int steps, Pass pass) {
  std::vector<int> took;
  took.resize(static_cast<std::size_t>(steps) * 9);
  std::size_t at = 0;
  const auto write = [&](std::int32_t address, int value) {
    fake.time += std::chrono::microseconds(2);
    const Clock::time_point start = Clock::now();
    registers.DlPortWritePortUchar(address, static_cast<std::uint8_t>(value));
    took[at++] = static_cast<int>((Clock::now() - start).count());
  };
  constexpr int stepsOfTimer = 1000;
  constexpr int stepsOfUpload = 60'000;
  for (int step = 0; step < steps; ++step) {
    fake.time += std::chrono::microseconds(982);
    if (step % stepsOfUpload == stepsOfUpload - 1) upload(fake, registers);
    write(controlAddress, registers.DlPortReadPortUchar(controlAddress) | 2);
    // Each bit is set and taken back by a write of its own; four of eight change a level.
    for (const int value : {0x04, 0x04, 0x44, 0x44, 0x04, 0x04, 0x00, 0x00}) {
      write(dataAddress, value);
    }
    if (step % stepsOfTimer == 0) pass();
  }
  return took;
}

std::vector<int> least(std::vector<int> one, const std::vector<int>& other) {
  for (std::size_t i = 0; i < one.size(); ++i) one[i] = std::min(one[i], other[i]);
  return one;
}

void tell(std::vector<int> took) {
  const auto slow = std::count_if(took.begin(), took.end(), [](int ns) { return ns > 20000; });
  std::sort(took.begin(), took.end());
  std::printf("%d %d %d %ld ", took[took.size() / 2], took[took.size() * 99 / 100], took.back(),
              static_cast<long>(slow));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return EXIT_FAILURE;
  const int steps = std::atoi(argv[1]);
  constexpr double MiB = 1 << 20;
  Fake fake;
  tell(play(fake, fake, steps, [] {}));
  std::vector<int> quickest;
  for (int run = 0; run < 2; ++run) {
    fake.time = {};
    wire::Recorder recorder(fake, fake, fake);
    const std::vector<int> took = play(fake, recorder, steps, [&] { recorder.pass(); });
    quickest = run == 0 ? took : least(quickest, took);
  }
  fake.time = {};
  wire::Recorder recorder(fake, fake, fake);
  const std::vector<int> took = play(fake, recorder, steps, [&] { recorder.pass(); });
  tell(took);
  quickest = least(quickest, took);
  std::printf("%d ", *std::max_element(quickest.begin(), quickest.end()));
  const wire::Trace& trace = recorder.trace(dataAddress);
  std::printf("%ld %.1f ", static_cast<long>(trace.history().end()),
              static_cast<double>(trace.history().bytes()) / MiB);

  Clock::time_point start = Clock::now();
  std::ofstream out(argv[2], std::ios::binary);
  wire::writeVcd(trace, [&](std::string_view piece) {
    return out.write(piece.data(), static_cast<std::streamsize>(piece.size())).good();
  });
  out.close();
  std::printf("%.0f ", milliseconds(start));

  start = Clock::now();
  std::ifstream in(argv[2], std::ios::binary);
  const std::string dump{std::istreambuf_iterator<char>(in), {}};
  const wire::ReadTrace read = wire::readVcd(dump, {});
  std::printf("%.1f %.0f\n", static_cast<double>(dump.size()) / MiB, milliseconds(start));
  return read.fault.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
