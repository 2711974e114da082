#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace monitra::ports {

/// The control register's last value of each port, kept for as long as the PC is up: a program
/// that opens a port finds the kernel's own value there and not what the run before had left.
class ControlMemory {
 public:
  /// The folder is made at the first value; the boot tells values of this run of the PC from older
  /// ones.
  ControlMemory(std::filesystem::path folder, std::string boot);

  /// That of the user's runtime folder.
  static ControlMemory ofUser();

  /// Of the port with this data register; none if nothing was kept since the PC is up.
  std::optional<std::uint8_t> last(std::int32_t address) const;

  /// A value that can't be kept is only missed at the next start.
  void keep(std::int32_t address, std::uint8_t value) const;

 private:
  std::filesystem::path file(std::int32_t address) const;

  std::filesystem::path folder_;
  std::string boot_;
};

}  // namespace monitra::ports
