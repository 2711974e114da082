#include <iostream>

#include "apps/window_program.h"
#include "host/executable.h"
#include "ports/real_ports.h"

int main(int argc, char** argv) {
  using namespace monitra;
  host::openStandardDescriptors();
  ports::RealPorts ports;
  controls::Observation told;
  const auto tellChanges = [&told](shell::Lap& lap) {
    told = lap.PortAllapot.Caption.observe(
        [&lap] { std::cout << lap.PortAllapot.Caption.get() << std::endl; });
  };
  return apps::run(
      argc, argv,
      {"Monitra Setup", ":/pictures/monitra.svg", "hu.monitra.Setup", ports, ports, tellChanges});
}
