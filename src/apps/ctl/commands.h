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

/// Reads the parameter block of a firmware file into the program's model and prints the resulting
/// state; faults of the image go to standard error with their lines.
ExitCode firmwareShow(const ShowOptions& options);

struct PatchOptions {
  std::string firmware;
  std::string setup;
  std::string target;
};

/// Writes a copy of a firmware file with the values of a Setup file in its parameter block, and
/// prints what has changed. The target must not exist. Refused ahead of writing: a block that is
/// not whole or not in its place, and a Setup with a value that this firmware doesn't have.
ExitCode firmwarePatch(const PatchOptions& options);

/// Checks every record of a firmware file and prints each fault with its line; a file error if
/// there is any.
ExitCode firmwareVerify(const std::string& file);

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
