#pragma once

#include <functional>

#include "platform/port_registers.h"
#include "shell/lap.h"

namespace monitra::apps {

/// What sets one program with the window apart from another.
struct WindowProgram {
  const char* title;       ///< caption of its message boxes
  const char* icon;        ///< of the window and the task bar
  const char* portStatus;  ///< what the footer and standard output say of the port
  platform::PortRegisters& registers;
  bool portInUse;  ///< whether the registers are those of a port, simulated or not
  /// Called with the started Lap once the window shows; may be empty.
  std::function<void(shell::Lap&)> started;
};

/// Runs the program until its shutdown, which ends the process. Returns an exit code only if that
/// never came about.
int run(int argc, char** argv, const WindowProgram& program);

}  // namespace monitra::apps
