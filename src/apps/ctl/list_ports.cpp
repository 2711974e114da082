#include <iomanip>
#include <iostream>
#include <string>
#include <vector>

#include "apps/ctl/commands.h"
#include "apps/ctl/json.h"
#include "apps/ctl/terminal.h"
#include "link/port_panel.h"
#include "link/port_selection.h"
#include "ports/kernel_driver.h"
#include "ports/printer_ports.h"
#include "ports/raw_driver.h"
#include "shell/port_texts.h"

namespace monitra::ctl {

namespace {

using platform::PortState;
using platform::Remedy;

struct ListedPort {
  std::string entry;  ///< of LPT that it serves; empty if none
  const char* way;
  PortState state;

  bool usable() const { return state.kind == PortState::Kind::Untried; }
};

std::string servedEntry(const ports::FoundPort& port, const std::vector<ports::FoundPort>& found) {
  const link::PortPanel panel;
  for (const std::string& entry : panel.LPT.Items) {
    if (ports::portFor(link::portAddress(entry), found, ports::entryAddresses) == port) {
      return entry;
    }
  }
  return {};
}

/// The kernel's ports, then those that only registers reach.
std::vector<ListedPort> listed(ports::KernelDriver& kernel, ports::RawDriver& raw) {
  std::vector<ListedPort> list;
  const std::vector<ports::FoundPort> known = kernel.find();
  list.reserve(known.size());
  for (const ports::FoundPort& port : known) {
    list.push_back({servedEntry(port, known), "kernel", kernel.look(port)});
  }
  for (const ports::FoundPort& port : raw.find()) {
    if (std::ranges::count(known, port.address, &ports::FoundPort::address) > 0) continue;
    list.push_back({servedEntry(port, {port}), "raw", raw.look(port)});
  }
  return list;
}

void print(const std::vector<ListedPort>& list, const Remedy& none) {
  constexpr int nodeWidth = 15;
  constexpr int otherWidth = 8;
  for (const ListedPort& port : list) {
    std::cout << std::left << std::setw(nodeWidth)
              << (port.state.node.empty() ? "(regiszterek)" : port.state.node)
              << std::setw(otherWidth) << shell::addressText(port.state.address)
              << std::setw(otherWidth) << (port.entry.empty() ? "-" : port.entry);
    const Remedy remedy = shell::portRemedy(port.state, port.entry);
    std::cout << (port.usable() ? "használható" : shell::portCause(port.state))
              << (port.state.shared ? ", közben ne nyomtasson" : "") << '\n';
    if (!remedy.command.empty()) std::cout << "  " << remedy.command << '\n';
  }
  if (list.empty()) printRemedy(std::cout, none);
}

/// Reason and command, or null where there is none.
void addRemedy(Json& object, const Remedy& remedy, bool usable) {
  object["reason"] = usable ? Json() : Json(remedy.text);
  object["command"] = remedy.command.empty() ? Json() : Json(remedy.command);
}

void printJson(const std::vector<ListedPort>& list, const Remedy& none) {
  Json all;
  all["ports"] = Json::array();
  for (const ListedPort& port : list) {
    Json object;
    object["node"] = port.state.node.empty() ? Json() : Json(port.state.node);
    object["address"] = shell::addressText(port.state.address);
    object["entry"] = port.entry.empty() ? Json() : Json(port.entry);
    object["way"] = port.way;
    object["usable"] = port.usable();
    object["shared"] = port.state.shared;
    addRemedy(object, shell::portRemedy(port.state, port.entry), port.usable());
    all["ports"].push_back(object);
  }
  addRemedy(all, list.empty() ? none : Remedy{}, !list.empty());
  writeJson(all);
}

}  // namespace

ExitCode listPorts(bool json) {
  ports::KernelDriver kernel;
  ports::RawDriver raw;
  const std::vector<ListedPort> list = listed(kernel, raw);
  const Remedy none = shell::portRemedy(kernel.none(), "");
  json ? printJson(list, none) : print(list, none);
  return std::ranges::any_of(list, &ListedPort::usable) ? done : portError;
}

}  // namespace monitra::ctl
