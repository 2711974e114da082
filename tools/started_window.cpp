#include <QApplication>

#include "apps/window_program.h"
#include "first_frame.h"
#include "host/executable.h"
#include "ports/real_ports.h"

/// The program as it is up to its first frame.
int main(int argc, char** argv) {
  monitra::host::openStandardDescriptors();
  monitra::ports::RealPorts ports;
  const auto watch = [](monitra::shell::Lap&) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) new FirstFrame(window);
    }
  };
  return monitra::apps::run(
      argc, argv,
      {"Monitra Setup", ":/pictures/monitra.svg", "hu.monitra.Setup", ports, ports, watch});
}
