#include <iostream>
#include <string>

#include "apps/window_program.h"
#include "link/port_selection.h"
#include "ports/simulated_port.h"

namespace {

using namespace monitra;

/// The receiving controller, as "&H378 PCB V4.x".
std::string place(std::int32_t address, const ports::Wiring& wiring, const link::PortPanel& panel) {
  for (const std::string& entry : panel.LPT.Items) {
    if (link::portAddress(entry) == address) return entry + " " + std::string(wiring.board);
  }
  return std::string(wiring.board);
}

/// The footer tells what the controller has received, and so does standard output, a line each.
void report(shell::Lap& lap, ports::SimulatedPort& port) {
  port.received = [&lap](std::int32_t address, const ports::Wiring& wiring,
                         const ports::Received& message) {
    const std::string heard =
        place(address, wiring, lap.port) + ": " + ports::bytesText(message.bytes);
    lap.Esemeny.Caption = "A vezérlő ezt kapta: " + heard;
    std::cout << heard << std::endl;
  };
}

}  // namespace

int main(int argc, char** argv) {
  ports::SimulatedPort port;
  return apps::run(argc, argv,
                   {"Monitra Szimulátor", ":/pictures/szimulator.svg",
                    "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, a gép nem mozdul.",
                    port, [&port](shell::Lap& lap) { report(lap, port); }});
}
