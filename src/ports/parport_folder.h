#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "ports/port_driver.h"

namespace monitra::ports {

/// What the kernel tells of its printer ports in its folders. The root is another than "/" in
/// tests.
class ParportFolder {
 public:
  explicit ParportFolder(std::filesystem::path root = "/") : root_(std::move(root)) {}

  /// All ports, in the order of their numbers.
  std::vector<FoundPort> ports() const;

  bool exists(const FoundPort& port) const;

  /// Names of the drivers that are registered on a port; that for programs is "ppdev" and a number.
  std::vector<std::string> registered(const FoundPort& port) const;

  /// The one of them that is using it just now; empty if none is.
  std::string active(const FoundPort& port) const;

  /// Whether the kernel looks for the PC's ports, whether it gives them to programs.
  bool searches() const;
  bool servesPrograms() const;

  /// Whether the system is told to load the driver for the PC's ports at every start.
  bool loadsAtStart() const;

  /// Whether the system gives the port to whoever sits at the PC.
  bool forSeat(const FoundPort& port) const;

  /// Its node for programs.
  std::filesystem::path node(const FoundPort& port) const;

  /// What every program of ours locks that uses the port, by whichever way.
  std::filesystem::path lock(const FoundPort& port) const;

 private:
  std::filesystem::path folder(const FoundPort& port) const;

  std::filesystem::path root_;
};

/// The name of the printer's driver.
inline constexpr std::string_view printerDriver = "lp";

/// Puts into a port's state who keeps it from us: a driver that is registered on it, other than the
/// printer's and that for programs, or else a program; nobody if none can be seen.
void findHolder(const ParportFolder& folder, const FoundPort& port, platform::PortState& state);

/// The program that holds a file locked, or where none does one that has it open: its name and
/// number; empty if that can't be seen.
std::string programHolding(const std::filesystem::path& file);

}  // namespace monitra::ports
