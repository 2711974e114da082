#include <algorithm>
#include <random>
#include <sstream>

#include "support/rows.h"
#include "support/scratch.h"
#include "wire/comparison.h"
#include "wire/figures.h"
#include "wire/message_text.h"
#include "wire/recorder.h"
#include "wire/vcd_reader.h"
#include "wire/vcd_writer.h"

namespace monitra::wire {
namespace {

using namespace support;
using namespace std::chrono_literals;

constexpr Levels all = 0xFFFF, dataWire = 1 << 5, clockWire = 1 << 7, stepWire = 1 << 6;

/// Levels that a board's wires get one by one.
struct Line {
  void put(Levels wires, Time behind = 1ms) {
    now += behind;
    levels = wires;
    changes.push_back({now, wires});
  }
  void bit(bool high) {
    put(high ? dataWire : 0);
    put(levels | clockWire);
    put(levels & dataWire);
  }
  /// A byte; "bit"; a step; noise on the data wire; or 300 ms.
  void send(const std::string& word) {
    if (word == "bit") return bit(true);
    if (word == "step") return put(levels | stepWire), put(levels & dataWire);
    if (word == "wait") return void(now += 300ms);
    if (word == "noise") return put(dataWire, 300us), put(0, 300us);
    for (int n = 0, byte = std::stoi(word); n < 8; ++n) bit((byte >> n & 1) != 0);
  }
  void sendAll(const std::string& text) {
    std::istringstream words(text);
    for (std::string word; words >> word;) send(word);
  }
  Trace trace() const {
    Trace made(boardLayout(link::Pcb::V4x));
    for (const Change& change : changes) made.take(change.time, change.levels, all);
    made.finish(now);
    return made;
  }

  Time now{};
  Levels levels = 0;
  std::vector<Change> changes{{Time(0), 0}};
};

std::string told(const Trace& trace) {
  std::string text;
  for (const Message& message : trace.decoder().messages()) {
    text += (text.empty() ? "" : "; ") + meaning(message);
  }
  return text;
}

std::string dumpOf(const Trace& trace) {
  std::string dump;
  writeVcd(trace, [&](std::string_view piece) { return !dump.append(piece).empty(); });
  return dump;
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
  return text.replace(text.find(what), what.size(), by);
}

TEST(History, IsAPlainListWithoutItsOldestBlocks) {
  std::mt19937 random(1);
  History history(3);
  std::vector<Change> model;
  const auto moved = [&](History::Index i) {
    return i == 0 ? 0 : model[i].levels ^ model[i - 1].levels;
  };
  const auto next = [&](int wires, History::Index i) {
    while (i < history.end() && !(moved(i) & wires)) ++i;
    return i;
  };
  for (Time now{}; model.size() < 5 * History::blockSize + 77; now += Time(random() % 3)) {
    const int wire = random() % 20000 == 0 ? 9 : random() % 300 == 0 ? 3 : 0;
    const Levels levels = (model.empty() ? 0 : model.back().levels) ^ wireMask(wire);
    model.push_back({now, levels});
    history.append(now, levels);
    if (random() % 999 == 0) history.prepare();
    if (random() % 5000 != 0) continue;
    const auto at = history.first() + History::Index(random() % (history.end() - history.first()));
    const Time time = model[at].time;
    History::Index behind = at, back = at;
    while (behind < history.end() && model[behind].time <= time) ++behind;
    EXPECT_EQ(history.firstAfter(time), behind);
    EXPECT_EQ(history.first(),
              std::max(0L, (history.end() - 1) / History::blockSize - 2) * History::blockSize);
    int some = 0;
    for (auto i = at; i < history.end(); ++i) some |= moved(i);
    EXPECT_EQ(history.toggled(at, history.end()), some);
    for (const Levels wires : std::vector<Levels>{1, 8, 512, 520}) {
      EXPECT_EQ(history.nextToggle(wires, at), next(wires, at));
      for (back = at - 1; back >= history.first() && !(moved(back) & wires);) --back;
      EXPECT_EQ(history.previousToggle(wires, at), back) << at << " " << wires;
    }
    for (back = behind - 1; back >= history.first() && !(moved(back) & 8);) --back;
    const auto from = next(8, history.firstAfter(model[at].time)), edge = next(8, behind);
    const Time end = model[at].time + Time(3000);
    std::vector<Time> edges, widths;
    for (auto i = from; i < history.end() && model[i].time <= end; i = next(8, i + 1)) {
      edges.push_back(model[i].time);
    }
    for (std::size_t i = 1; i < edges.size(); ++i) widths.push_back(edges[i] - edges[i - 1]);
    const Widths told = widthsBetween(history, 3, model[at].time + Time(1), end);
    ASSERT_EQ(told.count, static_cast<long>(widths.size()));
    if (told.count > 0) {
      EXPECT_EQ(told.least, *std::ranges::min_element(widths));
      EXPECT_EQ(told.greatest, *std::ranges::max_element(widths));
      EXPECT_EQ(told.mean, (edges.back() - edges.front()) / told.count);
    }
    const auto width = widthAt(history, 3, time);
    ASSERT_EQ(width.has_value(), back >= history.first() && edge < history.end());
    if (!width) continue;
    EXPECT_EQ(width->width(), model[edge].time - model[back].time);
  }
}

TEST(Decoder, TellsWhatAControllerMakesOfTheLineAndFindsItAgainInAnyDump) {
  const bool canDecode = shell("sigrok-cli --version").exitCode == 0;
  const Scratch scratch;
  for (const Row& row : rows("line")) {
    SCOPED_TRACE(row[0]);
    Line line;
    line.sendAll(row[0]);
    const Trace trace = line.trace();
    const std::string dump = dumpOf(trace);
    const ReadTrace own = readVcd(dump, {});
    ASSERT_EQ(own.fault, "");
    ASSERT_EQ(own.trace->history().end(), trace.history().end());
    for (History::Index i = 0; i < trace.history().end(); ++i) {
      EXPECT_EQ(own.trace->history().time(i), trace.history().time(i));
      EXPECT_EQ(own.trace->history().levels(i), trace.history().levels(i) & 0x0FFF);
    }
    const std::string foreign =
        replaced(replaced(replaced(dump, "1 us", "10us"), "D5_YDir_SorosAdat", "SDA"),
                 "D7_ZDir_SorosOrajel", "SCL");
    const ReadTrace named = readVcd(foreign, {"SDA", "SCL"});
    EXPECT_EQ(told(trace), row[1]);
    EXPECT_EQ(told(*own.trace), row[1]);
    if (row[2].empty()) continue;
    EXPECT_EQ(told(*named.trace), row[1]);
    EXPECT_EQ(named.trace->end(), 10 * own.trace->end());
    scratch.write("own.vcd", dump), scratch.write("foreign.vcd", foreign);
    for (const char* wires : {"own.vcd -P spi:clk=D7_ZDir_SorosOrajel:mosi=D5_YDir_SorosAdat",
                              "foreign.vcd -P spi:clk=SCL:mosi=SDA"}) {
      if (!canDecode) continue;
      const Ran theirs = shell("cd " + scratch.path() + "; sigrok-cli -I vcd -i " + wires +
                               ":bitorder=lsb-first:cpol=0:cpha=0:wordsize=8 -A spi=mosi-data |"
                               " sed 's/.*: /0x/' | xargs printf '%d '");
      EXPECT_EQ(theirs.output, row[0] + " ");
    }
  }
  if (!canDecode) GTEST_SKIP() << "sigrok-cli is not installed";
}

TEST(Decoder, MarksEachOfAThousandShortPhasesAndNoneElse) {
  Line line;
  for (int n = 0; n < 60; ++n) line.sendAll("99 0 1");
  std::vector<Change> changes = line.changes;
  std::erase_if(changes, [last = -1](const Change& c) mutable {
    return std::exchange(last, c.levels) == c.levels;
  });
  std::vector<std::size_t> chosen(changes.size() - 2);
  for (std::size_t n = 0; n < chosen.size(); ++n) chosen[n] = n + 1;
  std::shuffle(chosen.begin(), chosen.end(), std::mt19937(1));
  chosen.resize(1000);
  std::sort(chosen.begin(), chosen.end());
  Line shorter;
  std::vector<Time> expected, found;
  for (std::size_t n = 1; n < changes.size(); ++n) {
    const bool isShort = std::binary_search(chosen.begin(), chosen.end(), n - 1);
    if (isShort) expected.push_back(shorter.now);
    shorter.put(changes[n].levels, isShort ? 999us : changes[n].time - changes[n - 1].time);
  }
  const Trace trace = shorter.trace();
  const ReadTrace read = readVcd(dumpOf(trace), {});
  for (const auto* of : {&trace, static_cast<const Trace*>(read.trace.get())}) {
    found.clear();
    for (const Phase& phase : of->decoder().shortPhases()) found.push_back(phase.start);
    EXPECT_EQ(found, expected);
  }
}

TEST(Vcd, SaysWhereAndWhyItCantBeRead) {
  for (const Row& row : rows("faults")) {
    const ReadTrace read = readVcd(row[0], {row[1], row[1].empty() ? "" : "C"});
    EXPECT_EQ(read.fault, row[2]) << row[0];
  }
}

TEST(Comparison, PairsWhatIsTheSameAndShowsTheRest) {
  for (const Row& row : rows("comparison")) {
    std::array<std::deque<Message>, 2> sides;
    for (std::size_t side = 0; side < 2; ++side) {
      for (const char c : row[side]) sides[side].emplace_back().bytes = {std::uint8_t(c - '0')};
    }
    std::string seen;
    for (const Pairing& pair : compare(sides[0], sides[1])) {
      const auto name = [&](std::size_t side, std::optional<std::size_t> at) {
        return at ? std::to_string(sides[side][*at].bytes[0]) : "-";
      };
      seen += (seen.empty() ? "" : " ") + name(0, pair.first) + name(1, pair.second);
      EXPECT_EQ(pair.same, differenceText(pair, sides[0], sides[1]).empty());
    }
    EXPECT_EQ(seen, row[2]);
  }
}

struct FakePort : platform::PortRegisters, platform::PortStates, platform::Sleeper {
  std::uint8_t DlPortReadPortUchar(std::int32_t) override { return 0; }
  void DlPortWritePortUchar(std::int32_t, std::uint8_t) override { gone += !there; }
  platform::PortState state(std::int32_t) override { return {}; }
  void tryAgain(std::int32_t) override {}
  long vanished() const override { return gone; }
  void Sleep(int) override {}
  std::chrono::nanoseconds now() const override { return 7s; }
  long gone = 0;
  bool there = false;
};

TEST(Recorder, KeepsWhatHasGoneOutAndKnowsNoOtherLevel) {
  FakePort port;
  Recorder recorder(port, port, port);
  const Trace& trace = recorder.trace(0x278);
  recorder.DlPortWritePortUchar(0x278, 5);
  EXPECT_TRUE(trace.history().empty());
  port.there = true;
  recorder.DlPortWritePortUchar(0x278, 6);
  EXPECT_EQ(trace.known(), 0x00FF);
  EXPECT_EQ(trace.knownSince(0), 7s);
  recorder.DlPortWritePortUchar(0x27A, 0xF3);
  recorder.DlPortWritePortUchar(0x279, 1);
  EXPECT_EQ(trace.known(), 0x0FFF);
  EXPECT_EQ(trace.levels(), 0x0306);
  EXPECT_EQ(trace.history().end(), 2);
  EXPECT_TRUE(recorder.trace(0x378).history().empty());
}

}  // namespace
}  // namespace monitra::wire
