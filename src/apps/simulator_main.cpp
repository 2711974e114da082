#include <iostream>
#include <string>

#include "apps/window_program.h"
#include "link/port.h"
#include "ports/simulated_port.h"

namespace {

using namespace monitra;

/// The receiving controller, as "&H378, PCB V4.x".
std::string place(std::int32_t address, const ports::Wiring& wiring, const link::PortPanel& panel) {
  for (const std::string& entry : panel.LPT.Items) {
    if (link::portAddress(entry) == address) return entry + ", " + std::string(wiring.board);
  }
  return std::string(wiring.board);
}

/// The footer tells what the controller has received, and so does standard output, a line each.
void report(shell::Lap& lap, ports::SimulatedPort& port) {
  port.received = [&lap](std::int32_t address, const ports::Wiring& wiring,
                         const ports::Received& message) {
    const std::string bytes = ports::bytesText(message.bytes);
    const std::string where = place(address, wiring, lap.port);
    lap.Esemeny.Caption = "A szimulált vezérlő ezt kapta: " + bytes;
    std::cout << where << ": " << bytes << std::endl;
  };
}

}  // namespace

int main(int argc, char** argv) {
  constexpr const char* status =
      "Szimulált port: a jelek egy virtuális vezérlőhöz mennek, gép nem mozdul.";
  ports::SimulatedPort port;
  return apps::run(argc, argv, {"Monitra Szimulátor", status, port, [&port](shell::Lap& lap) {
                                  report(lap, port);
                                  std::cout << status << std::endl;
                                }});
}
