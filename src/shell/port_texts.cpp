#include "shell/port_texts.h"

#include <sstream>

#include "link/port_selection.h"

namespace monitra::shell {

namespace {

using platform::PortState;
using Kind = PortState::Kind;

/// "a /dev/parport0", or "a 0x378 című" where the port has no node.
std::string theOne(const PortState& state) {
  return "a " + (state.node.empty() ? addressText(state.address) + " című" : state.node);
}

std::string usedPort(const PortState& state, std::string_view entry) {
  std::string text = "Port: ";
  if (state.kind == Kind::Kernel) {
    text += state.node + ", cím " + addressText(state.address) + ", a kernel meghajtójával";
  } else if (state.kind == Kind::Raw) {
    text += "közvetlen regiszterek, cím " + addressText(state.address);
  } else {
    text += (state.node.empty() ? "" : state.node + ", ") + "cím " + addressText(state.address);
  }
  if (state.address != link::portAddress(entry)) {
    text += ", az ";
    text += entry;
    text += " helyén";
  }
  if (state.kind == Kind::Untried) text += "; az első használatkor nyílik meg";
  if (state.shared) text += "; közben ne nyomtasson";
  return text + ".";
}

/// Why the port is not in use, and what to do.
std::string cause(const PortState& state) {
  switch (state.kind) {
    case Kind::NoDriver:
      return "a nyomtatóport meghajtója nincs betöltve. Töltse be!";
    case Kind::NoNode:
      return "a ppdev meghajtó nincs betöltve. Töltse be!";
    case Kind::NoneLeft:
      return "ehhez a címhez nincs port. Válasszon másikat a „Teszt” fülön!";
    case Kind::NoPermission:
      return theOne(state) + " használatára nincs jog. Lépjen be az lp csoportba!";
    case Kind::NotYetMember:
      return "az lp csoport joga a következő belépéstől él. Jelentkezzen ki, majd be!";
    case Kind::NoRegisters:
      return "a rendszer nem engedi a közvetlen regisztereket. Használja a meghajtót!";
    case Kind::Busy:
      if (state.holderIsDriver) {
        return theOne(state) + " foglalt, a(z) " + state.holder + " meghajtó használja. Vegye ki!";
      }
      return theOne(state) +
             " foglalt, használja: " + (state.holder.empty() ? "más program" : state.holder) +
             ". Zárja be!";
    case Kind::Printing:
      return theOne(state) + " épp nyomtat. Várja meg, vagy állítsa le!";
    case Kind::Lost:
      return theOne(state) + " használat közben eltűnt. Töltse be a meghajtót!";
    case Kind::Failed:
      return theOne(state) + " nem nyílik meg, a hiba kódja " + std::to_string(state.error) + ".";
    default:
      return "ezen a gépen nincs nyomtatóport. Próbához a Monitra Szimulátor való.";
  }
}

std::string command(const PortState& state) {
  switch (state.kind) {
    case Kind::NoDriver:
    case Kind::NoRegisters:
    case Kind::Lost:
      return "sudo modprobe -a parport_pc ppdev";
    case Kind::NoNode:
      return "sudo modprobe ppdev";
    case Kind::NoPermission:
      return "sudo usermod -aG lp $USER";
    case Kind::Printing:
      return "sudo systemctl stop cups; sudo modprobe -r lp";
    case Kind::Busy:
      return state.holderIsDriver ? "sudo modprobe -r " + state.holder : std::string{};
    default:
      return state.inUse() && state.shared ? "sudo modprobe -r lp" : std::string{};
  }
}

}  // namespace

std::string portText(const PortState& state, std::string_view entry) {
  if (state.kind == Kind::Simulated) {
    return "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, a gép nem mozdul.";
  }
  if (state.inUse() || state.kind == Kind::Untried) return usedPort(state, entry);
  return "Semmi sem megy ki: " + cause(state);
}

platform::Remedy portRemedy(const PortState& state, std::string_view entry) {
  return {portText(state, entry), command(state), !state.inUse()};
}

std::string addressText(std::int32_t address) {
  std::ostringstream text;
  text << "0x" << std::hex << std::uppercase << address;
  return text.str();
}

}  // namespace monitra::shell
