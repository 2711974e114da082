#include "wire/vcd_writer.h"

#include <string>

namespace monitra::wire {

namespace {

constexpr std::size_t pieceSize = 1 << 16;

/// Identifier codes: one printable character for each wire.
char code(int wire) {
  return static_cast<char>('!' + wire);
}

class Writer {
 public:
  Writer(const Trace& trace, const std::function<bool(std::string_view)>& write)
      : trace_(trace), write_(write), tick_(trace.layout().hasBoard ? 1000 : 1) {}

  void run() {
    declare();
    const History& history = trace_.history();
    Levels shown = 0;
    for (History::Index i = history.first(); i < history.end(); ++i) {
      const Levels known = knownAt(history.time(i));
      const Levels moved =
          (i == history.first() ? Levels{0} : history.toggled(i)) | (known & ~shown);
      shown = known;
      if ((moved & known) == 0) continue;
      tell(history.time(i));
      for (int wire = 0; wire < maxWires; ++wire) {
        if ((moved & known & wireMask(wire)) == 0) continue;
        text_ += (history.levels(i) & wireMask(wire)) != 0 ? '1' : '0';
        text_ += code(wire);
        text_ += '\n';
      }
      if (text_.size() >= pieceSize && !hand()) return;
    }
    tell(trace_.end());
    hand();
  }

 private:
  void declare() {
    text_ = tick_ == 1 ? "$version Monitra $end\n$timescale 1 ns $end\n$scope module lpt $end\n"
                       : "$version Monitra $end\n$timescale 1 us $end\n$scope module lpt $end\n";
    std::string unknown;
    for (int wire = 0; wire < maxWires; ++wire) {
      const std::string& name = trace_.layout().names[static_cast<std::size_t>(wire)];
      if (name.empty()) continue;
      text_ += std::string("$var wire 1 ") + code(wire) + ' ' + name + " $end\n";
      unknown += std::string("x") + code(wire) + '\n';
    }
    text_ += "$upscope $end\n$enddefinitions $end\n#0\n$dumpvars\n" + unknown + "$end\n";
  }

  void tell(Time time) {
    const std::int64_t ticks = time.count() / tick_ - trace_.start().count() / tick_;
    text_ += '#' + std::to_string(ticks) + '\n';
  }

  Levels knownAt(Time time) const {
    Levels known = 0;
    for (int wire = 0; wire < maxWires; ++wire) {
      const bool isThere = !trace_.layout().names[static_cast<std::size_t>(wire)].empty();
      if (isThere && trace_.knownSince(wire) <= time) known |= wireMask(wire);
    }
    return known;
  }

  bool hand() {
    const bool taken = write_(text_);
    text_.clear();
    return taken;
  }

  const Trace& trace_;
  const std::function<bool(std::string_view)>& write_;
  std::int64_t tick_;
  std::string text_;
};

}  // namespace

void writeVcd(const Trace& trace, const std::function<bool(std::string_view)>& write) {
  Writer(trace, write).run();
}

}  // namespace monitra::wire
