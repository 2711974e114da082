#include "ports/vcd.h"

#include <optional>

namespace monitra::ports {

namespace {

/// Identifier codes: one printable character for each wire.
constexpr char firstDataCode = '!';
constexpr char firstControlCode = firstDataCode + 8;

void declare(std::string& dump, const std::array<std::string, 8>& wires, char firstCode) {
  for (std::size_t bit = 0; bit < wires.size(); ++bit) {
    dump += "$var wire 1 ";
    dump += static_cast<char>(firstCode + static_cast<int>(bit));
    dump += ' ' + wires[bit] + " $end\n";
  }
}

/// The state of a register's wires; "x" for all where the register's value is not known.
void levels(std::string& dump, std::optional<int> value, char firstCode) {
  for (int bit = 0; bit < 8; ++bit) {
    dump += !value ? 'x' : (*value >> bit & 1) != 0 ? '1' : '0';
    dump += static_cast<char>(firstCode + bit);
    dump += '\n';
  }
}

}  // namespace

std::string vcd(const VcdPort& port, const std::vector<PortEvent>& events) {
  std::string dump = "$version Monitra $end\n$timescale 1 us $end\n$scope module lpt $end\n";
  declare(dump, port.dataWires, firstDataCode);
  declare(dump, port.controlWires, firstControlCode);
  dump += "$upscope $end\n$enddefinitions $end\n#0\n$dumpvars\n";
  levels(dump, {}, firstDataCode);
  levels(dump, {}, firstControlCode);
  dump += "$end\n";

  bool dataKnown = false;
  bool controlKnown = false;
  for (const PortEvent& event : events) {
    const bool data = event.address == port.dataAddress;
    const bool control = event.address == port.controlAddress;
    if (event.kind == PortEvent::Kind::Sleep || (!data && !control)) continue;
    bool& known = data ? dataKnown : controlKnown;
    if (event.kind == PortEvent::Kind::Write || !known) {
      const auto time = std::chrono::floor<std::chrono::microseconds>(event.end) -
                        std::chrono::floor<std::chrono::microseconds>(events.front().end);
      dump += '#' + std::to_string(time.count()) + '\n';
      levels(dump, event.value, data ? firstDataCode : firstControlCode);
    }
    known = true;
  }
  if (!events.empty()) {
    const auto end =
        std::chrono::ceil<std::chrono::microseconds>(events.back().end - events.front().end);
    dump += '#' + std::to_string(end.count()) + '\n';
  }
  return dump;
}

}  // namespace monitra::ports
