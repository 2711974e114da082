#include "apps/window_program.h"
#include "ports/real_ports.h"

int main(int argc, char** argv) {
  monitra::ports::RealPorts ports;
  return monitra::apps::run(argc, argv,
                            {"Monitra Setup", ":/pictures/monitra.svg", ports, ports, {}});
}
