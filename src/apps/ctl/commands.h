#pragma once

#include <array>
#include <string>

/// The commands of monitra-ctl. Each prints its result to standard output, and what went wrong
/// besides to standard error, in Hungarian, and returns an exit code.
namespace monitra::ctl {

enum ExitCode : int { done = 0, fileError = 1, usageError = 2, portError = 3 };

/// Those of a comparison, beside done and usageError.
inline constexpr ExitCode different = fileError;
inline constexpr ExitCode unreadable = portError;

struct ShowOptions {
  std::string file;
  std::string spm;  ///< millimetres per step, a number above 0 and up to 3; empty: not given
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

/// The port that a command works on.
struct PortOptions {
  std::string port = "auto";  ///< "auto", "kernel", "raw" or "sim"
  std::string lpt;            ///< "378", "278" or "3BC"; empty: that of the program's preferences
  std::string pcb;            ///< "32" or "40"; empty: the board of the program's preferences
  bool yes = false;           ///< every question is answered so
};

struct UploadOptions {
  std::string file;
  PortOptions port;
  std::string vcd;     ///< file for the record of register writes; empty: none
  bool force = false;  ///< the record may replace a file
};

/// Sends a Setup file to a port, the way the program's button does; prints what the virtual
/// controller has received if it was the simulated one. Like all commands below it touches no pin
/// ahead of a Yes to its question; a No is done, no answer at all a usage error, and a port that
/// can't be used or that went away a port error.
ExitCode upload(const UploadOptions& options);

/// Sends the three frames that switch the motors off.
ExitCode off(const PortOptions& options);

inline constexpr std::array motorWords{"x", "y", "z"};
inline constexpr std::array lineWords{"l1", "l2", "l3", "l4", "ki"};

struct FrameOptions {
  std::string motor;  ///< one of the words above
  std::string line;
  PortOptions port;
};

/// Sends one frame.
ExitCode frame(const FrameOptions& options);

/// Prints the printer ports of this PC and whether each can be used, as lines or as JSON. Touches
/// none of them.
ExitCode listPorts(bool json);

struct DecodeOptions {
  std::string file;
  std::string other;  ///< to compare with; empty: none
  std::string data;   ///< name of the data wire in the recording; empty: as the program names it
  std::string clock;  ///< given with the data wire only
  std::string pcb;    ///< "32" or "40"; empty: the recording tells it
  bool json = false;
};

/// Prints the messages in a recording of the pins, those ahead of the fault in one that breaks
/// off, or what differs between those of two recordings. A file error if one can't be read to its
/// end, and if anything differs.
ExitCode decode(const DecodeOptions& options);

struct DiffOptions {
  std::string first;
  std::string second;
  bool json = false;
};

/// Prints what differs between two files, each a Setup or a firmware. One that ends early can't be
/// compared.
ExitCode diff(const DiffOptions& options);

}  // namespace monitra::ctl
