#pragma once

#include <string>

/// The commands of monitra-ctl. Each prints its result to standard output, and what went wrong
/// besides to standard error, in Hungarian, and returns an exit code.
namespace monitra::ctl {

enum ExitCode : int { done = 0, fileError = 1, usageError = 2, portError = 3 };

struct ShowOptions {
  std::string file;
  bool json = false;
};

/// Opens a Setup file in the program's model and prints the resulting state, also that after a
/// failed opening.
ExitCode show(const ShowOptions& options);

struct UploadOptions {
  std::string file;
  std::string port;  ///< "sim"
  std::string lpt;   ///< "378", "278" or "3BC"; empty: the port of the program's preferences
  std::string pcb;   ///< "32" or "40"; empty: the board of the program's preferences
  std::string vcd;   ///< file for the record of register writes; empty: none
  bool yes = false;
};

/// Sends a Setup file to the simulated port, the way the program's button does, and prints what
/// the virtual controller has received. A No to its question is done, no answer at all a usage
/// error.
ExitCode upload(const UploadOptions& options);

}  // namespace monitra::ctl
