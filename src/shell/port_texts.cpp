#include "shell/port_texts.h"

#include <sstream>

#include "link/port_selection.h"

namespace monitra::shell {

namespace {

using platform::PortState;
using Kind = PortState::Kind;

/// "a /dev/parport0", or "a 0x378 című port" where the port has no node.
std::string theOne(const PortState& state) {
  return "a " + (state.node.empty() ? addressText(state.address) + " című port" : state.node);
}

std::string usedPort(const PortState& state, std::string_view entry) {
  std::string text = "Port: " + (state.node.empty() ? "közvetlen regiszterek" : state.node) +
                     ", cím " + addressText(state.address);
  if (state.kind == Kind::Kernel) text += ", a kernel meghajtójával";
  if (state.address != link::portAddress(entry)) {
    text += ", az ";
    text += entry;
    text += " helyén";
  }
  if (state.kind == Kind::Untried) text += "; az első használatkor nyílik meg";
  if (state.shared) text += "; közben ne nyomtasson";
  return text + ".";
}

constexpr const char* loadDriver = "sudo modprobe -a parport_pc ppdev";

/// The module of a driver that calls itself so on a port: without the port's number.
std::string moduleOf(std::string driver) {
  while (!driver.empty() && driver.back() >= '0' && driver.back() <= '9') driver.pop_back();
  return driver;
}

std::string command(const PortState& state) {
  switch (state.kind) {
    case Kind::NoDriver:
    case Kind::NoRegisters:
    case Kind::Lost:
      return loadDriver;
    case Kind::NoNode:
      return "sudo modprobe ppdev";
    case Kind::NoPermission:
      return "sudo usermod -aG " + state.group + " $USER";
    case Kind::Printing:
      return "sudo systemctl stop cups cups.socket cups.path; sudo modprobe -r lp";
    case Kind::NoLockFolder:
      return "sudo mkdir -p -m 1777 /run/lock";
    case Kind::Busy:
      return state.holderIsDriver ? "sudo modprobe -r " + moduleOf(state.holder) : std::string{};
    default:
      return state.shared ? "sudo modprobe -r lp" : std::string{};
  }
}

std::string advice(const PortState& state) {
  if (command(state) == loadDriver) {
    return std::string(state.comesAtStart ? "Ha úgy sem megy, töltse be a meghajtót! " : "") +
           "Előbb vegye le a tápot a vezérlőről: a meghajtó betöltéskor mintákat ír a port "
           "lábaira, és a motorok megmozdulhatnak!";
  }
  if (state.kind == Kind::NoPermission && state.forSeat) {
    return "Ha távolról kell, lépjen be a(z) " + state.group +
           " csoportba, azután jelentkezzen be újra!";
  }
  if (state.kind == Kind::NoPermission || state.kind == Kind::NotYetMember) {
    return "Ha ki- és bejelentkezés után sem megy, indítsa újra a gépet!";
  }
  if (state.shared) {
    return "A nyomtató meghajtója is használhatja a portot. Egy közben indított nyomtatás a "
           "kilépésig vár, és amikor a kernel átadja neki a portot, a gép lefagyhat.";
  }
  return {};
}

}  // namespace

std::string portCause(const PortState& state) {
  switch (state.kind) {
    case Kind::NoDriver:
      return std::string("a nyomtatóport meghajtója nincs betöltve. ") +
             (state.comesAtStart ? "Indítsa újra a gépet!" : "Töltse be!");
    case Kind::NoNode:
      return "a ppdev meghajtó nincs betöltve. Töltse be!";
    case Kind::Hidden:
      return theOne(state) + " innen nem látszik. Adja át a konténernek!";
    case Kind::NoneLeft:
      return "ehhez a címhez nincs port. Válasszon másikat a „Teszt” fülön!";
    case Kind::NoPermission:
      if (state.forSeat) {
        return theOne(state) + " azé, aki a gép előtt ül. Ott jelentkezzen be!";
      }
      return theOne(state) + " használatára nincs jog. Lépjen be a(z) " + state.group +
             " csoportba!";
    case Kind::NotYetMember:
      return "a(z) " + state.group +
             " csoport joga a következő belépéstől él. Jelentkezzen ki, majd be!";
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
    case Kind::NoLockFolder:
      return "hiányzik a /run/lock mappa, amely a port lefoglalásához kell. Hozza létre!";
    case Kind::Failed:
      return theOne(state) + " nem nyílik meg, a hiba kódja " + std::to_string(state.error) + ".";
    default:
      return "ezen a gépen nincs nyomtatóport. Próbához a Monitra Szimulátor való.";
  }
}

std::string portText(const PortState& state, std::string_view entry) {
  if (state.kind == Kind::Simulated) {
    return "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, a gép nem mozdul.";
  }
  if (state.inUse() || state.kind == Kind::Untried) return usedPort(state, entry);
  return "Semmi sem megy ki: " + portCause(state);
}

controls::Status portStatus(const PortState& state) {
  using controls::Status;
  if (!state.inUse() && state.kind != Kind::Untried) return Status::Fault;
  return state.shared ? Status::Warning : Status::Plain;
}

platform::Remedy portRemedy(const PortState& state, std::string_view entry) {
  return {portText(state, entry), advice(state), command(state), !state.inUse()};
}

std::string addressText(std::int32_t address) {
  std::ostringstream text;
  text << "0x" << std::hex << std::uppercase << address;
  return text.str();
}

}  // namespace monitra::shell
