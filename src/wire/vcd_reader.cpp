#include "wire/vcd_reader.h"

#include <algorithm>
#include <charconv>

#include "wire/vcd_declarations.h"

namespace monitra::wire {

namespace {

/// What stands behind the declarations.
class Changes {
 public:
  Changes(VcdTokens& tokens, const VcdDeclarations& declarations, const WireCodes& codes,
          Trace& trace)
      : tokens_(tokens), declarations_(declarations), codes_(codes), trace_(trace) {}

  /// Gives what is wrong; empty if nothing is.
  std::string read() {
    std::string fault;
    while (fault.empty()) {
      const std::string_view token = tokens_.next();
      if (token.empty()) break;
      fault = take(token);
    }
    flush();
    trace_.finish(time_);
    return fault;
  }

 private:
  std::string take(std::string_view token) {
    switch (token.front()) {
      case '0':
      case '1':
      case 'x':
      case 'X':
      case 'z':
      case 'Z':
        return set(token.front(), token.substr(1));
      case '#':
        return pass(token.substr(1));
      case 'b':
      case 'B':
        return set(token.back(), tokens_.next());
      case 'r':
      case 'R':
        return set('x', tokens_.next());
      case '$':
        if (token == "$comment") tokens_.skipToEnd();
        return {};
      default:
        return "érthetetlen: " + std::string(token.substr(0, 20));
    }
  }

  std::string set(char level, std::string_view code) {
    if (code.empty()) return "a fájl félbeszakadt";
    const Levels wires = codes_.wires(code);
    if (wires == 0 || (level != '0' && level != '1')) return {};
    levels_ = static_cast<Levels>(level == '1' ? levels_ | wires : levels_ & ~wires);
    known_ |= wires;
    return {};
  }

  std::string pass(std::string_view digits) {
    flush();
    std::int64_t ticks = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), ticks);
    if (error != std::errc() || end != digits.data() + digits.size() || ticks < 0) {
      return "nem idő: " + std::string(digits.substr(0, 20));
    }
    const std::optional<Time> time = declarations_.time(ticks);
    if (!time) return "túl nagy idő";
    if (*time < time_) return "az idő visszafelé megy";
    time_ = *time;
    return {};
  }

  void flush() {
    if (known_ != 0) trace_.take(time_, levels_, known_);
  }

  VcdTokens& tokens_;
  const VcdDeclarations& declarations_;
  const WireCodes& codes_;
  Trace& trace_;
  Time time_{};
  Levels levels_ = 0;
  Levels known_ = 0;
};

std::string listed(const std::vector<std::string>& names) {
  constexpr std::size_t most = 20;
  std::string list;
  for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
    list += (i == 0 ? "" : ", ") + names[i];
  }
  return names.size() > most ? list + " …" : list;
}

/// The bit of a pin as our own recordings name it ("D5_YDir", "C1"), from 0 to 15; none of others.
std::optional<int> pinOf(std::string_view name) {
  constexpr int bitsOfRegister = 8;
  const std::string_view pin = name.substr(0, name.find('_'));
  if (pin.size() != 2 || (pin[0] != 'D' && pin[0] != 'C') || pin[1] < '0' || pin[1] > '7')
    return {};
  return pin[1] - '0' + (pin[0] == 'C' ? bitsOfRegister : 0);
}

/// The board as the names of our own recordings tell it.
std::optional<link::Pcb> boardOf(const std::vector<std::string>& names) {
  for (const link::Pcb pcb : {link::Pcb::V32, link::Pcb::V4x}) {
    const Layout layout = boardLayout(pcb);
    const std::string& clock = layout.names[static_cast<std::size_t>(layout.lines.clock)];
    if (std::ranges::find(names, clock) != names.end()) return pcb;
  }
  return {};
}

/// The layout of the recording, and where its wires are in it.
struct Plan {
  Layout layout;
  WireCodes codes;
  std::string fault;  ///< why the two wires must be named; empty if all is well
};

Plan planOwn(const VcdDeclarations& declarations, link::Pcb pcb) {
  Plan plan{boardLayout(pcb), {}, {}};
  bool found = false;
  for (const VcdDeclarations::Wire& wire : declarations.wires()) {
    const std::optional<int> pin = pinOf(wire.name);
    if (!pin) continue;
    plan.codes.add(wire.code, wireMask(*pin));
    found = true;
  }
  if (!found)
    plan.fault = "nincs benne D0–D7 nevű vezeték; adja meg az adat- és az órajelvezetéket";
  return plan;
}

Plan planNamed(const VcdDeclarations& declarations, const WireNames& names) {
  std::array<std::string, maxWires> rows;
  rows[0] = names.data;
  rows[1] = names.clock;
  Plan plan;
  std::size_t next = 2;
  for (const VcdDeclarations::Wire& wire : declarations.wires()) {
    if (wire.name == names.data || wire.name == names.clock) {
      plan.codes.add(wire.code, wireMask(wire.name == names.data ? 0 : 1));
    } else if (next < rows.size()) {
      rows[next] = wire.name;
      plan.codes.add(wire.code, wireMask(static_cast<int>(next++)));
    }
  }
  plan.layout = plainLayout(std::move(rows));
  const std::vector<std::string> all = declarations.names();
  for (const std::string& name : {names.data, names.clock}) {
    if (std::ranges::find(all, name) != all.end()) continue;
    plan.fault = (name.empty() ? "meg kell adni az adat- és az órajelvezetéket is; "
                               : "nincs benne " + name + " nevű vezeték; ") +
                 "van: " + listed(all);
    return plan;
  }
  if (names.data == names.clock) plan.fault = "az adat- és az órajelvezeték nem lehet ugyanaz";
  return plan;
}

Plan planOf(const VcdDeclarations& declarations, const WireNames& names) {
  if (names.given()) return planNamed(declarations, names);
  const std::vector<std::string> all = declarations.names();
  const std::optional<link::Pcb> pcb = names.pcb ? names.pcb : boardOf(all);
  if (pcb) return planOwn(declarations, *pcb);
  Plan plan;
  plan.fault = "meg kell adni az adat- és az órajelvezetéket; van: " + listed(all);
  return plan;
}

}  // namespace

ReadTrace readVcd(std::string_view dump, const WireNames& names) {
  ReadTrace result;
  VcdTokens tokens(dump);
  VcdDeclarations declarations;
  result.fault = declarations.read(tokens);
  if (!result.fault.empty()) {
    result.fault = std::to_string(tokens.line()) + ". sor: " + result.fault + ".";
    return result;
  }
  result.names = declarations.names();
  Plan plan = planOf(declarations, names);
  if (!plan.fault.empty()) {
    result.fault = plan.fault + ".";
    result.needsNames = true;
    return result;
  }
  result.trace = std::make_unique<Trace>(std::move(plan.layout), History::unbounded);
  result.fault = Changes(tokens, declarations, plan.codes, *result.trace).read();
  if (!result.fault.empty()) {
    result.fault = std::to_string(tokens.line()) + ". sor: " + result.fault +
                   ". Csak az előtte álló rész látszik.";
  }
  return result;
}

}  // namespace monitra::wire
