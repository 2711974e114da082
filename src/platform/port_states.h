#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace monitra::platform {

/// How things stand with the printer port that serves an entry of LPT.
struct PortState {
  enum class Kind {
    Kernel,        ///< in use, through the kernel's driver
    Raw,           ///< in use, by its registers
    Simulated,     ///< in use, with a virtual controller behind it
    Untried,       ///< it would do, and is opened at its next use
    NoDriver,      ///< the kernel's driver for printer ports is not loaded
    NoNode,        ///< its part for programs is not loaded
    NoPort,        ///< the PC has no printer port
    Hidden,        ///< the kernel has it, but there is no node for it here
    NoneLeft,      ///< every port of the PC serves another entry
    NoPermission,  ///< the user may not open it
    NotYetMember,  ///< the user may, from the next login on
    NoRegisters,   ///< the process may not use registers
    Busy,          ///< a program, or a driver other than the printer's, has it
    Printing,      ///< the printer's driver is using it just now
    Lost,          ///< it went away while in use
    Failed,        ///< the system refused it for some other reason
    NoLockFolder,  ///< the folder /run/lock, where programs keep out of each other's way, is
                   ///< missing
  };

  Kind kind = Kind::NoPort;
  std::int32_t address = 0;  ///< of the port's own data register; 0 where there is no port
  std::string node = {};     ///< "/dev/parport0"; empty without one
  std::string holder = {};   ///< who has a busy port: "program (number)", or a driver's name
  bool holderIsDriver = false;
  std::string group = {};     ///< whose members may open a port that the user may not
  bool forSeat = false;       ///< whoever sits at the PC may open it too
  bool comesAtStart = false;  ///< the missing driver is loaded at every start of the PC
  /// The printer's driver is there too. Its pages wait while we have the port, and where the port
  /// has an interrupt the kernel can freeze when it hands the port over to one that waits.
  bool shared = false;
  int error = 0;  ///< errno of a failure

  bool inUse() const {
    return kind == Kind::Kernel || kind == Kind::Raw || kind == Kind::Simulated;
  }
  bool operator==(const PortState&) const = default;
};

/// What there is to know of the ports behind the registers. Entries of LPT go by the address of
/// their data register.
class PortStates {
 public:
  PortStates() = default;
  PortStates(const PortStates&) = delete;
  PortStates& operator=(const PortStates&) = delete;
  virtual ~PortStates() = default;

  /// Present state; of an entry that was not used yet, without opening its port.
  virtual PortState state(std::int32_t entry) = 0;

  /// Opens the entry's port now if it isn't in use, as its next use would.
  virtual void tryAgain(std::int32_t entry) = 0;

  /// A message begins with the next access, or has ended with the last one. What begins without a
  /// port must not end on one, so behind its first access none is opened.
  virtual void markMessage(bool /*begins*/) {}

  /// How many writes up to now have gone out on no port.
  virtual long vanished() const = 0;

  /// Called when the state of an entry has changed, from inside the access that found it out.
  std::function<void()> changed;
};

}  // namespace monitra::platform
