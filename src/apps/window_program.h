#pragma once

#include <functional>

#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "shell/lap.h"

namespace monitra::apps {

/// What sets one program with the window apart from another.
struct WindowProgram {
  const char* title;  ///< caption of its message boxes
  const char* icon;   ///< of the window and the task bar
  const char* entry;  ///< name of its desktop entry, by which a desktop knows its windows
  platform::PortRegisters& registers;
  platform::PortStates& ports;
  /// Called with the started Lap once the window shows; may be empty.
  std::function<void(shell::Lap&)> started;
};

/// Runs the program with the file that the command line names, if there is one, until its shutdown,
/// which ends the process. Returns an exit code only if that never came about. The standard
/// descriptors must be open.
int run(int argc, char** argv, const WindowProgram& program);

}  // namespace monitra::apps
