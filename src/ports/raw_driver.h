#pragma once

#include "ports/locked_file.h"
#include "ports/parport_folder.h"
#include "ports/port_driver.h"

namespace monitra::ports {

/// Ports by their registers, past the kernel's driver. Needs the right to use registers, which is
/// root's, and which a locked-down kernel gives to nobody. Only for PCs that have such registers,
/// and only for ports on which none of the kernel's drivers is registered.
class RawDriver : public PortDriver {
 public:
  explicit RawDriver(ParportFolder folder = ParportFolder()) : folder_(std::move(folder)) {}

  /// The ports that the kernel knows of, then those that answer at the three usual addresses.
  std::vector<FoundPort> find() override;
  platform::PortState none() const override;
  platform::PortState look(const FoundPort& port) override;
  Opening open(const FoundPort& port, std::optional<std::uint8_t> lastControl) override;

 private:
  struct Locked {
    platform::PortState state;
    LockedFile address;
    LockedFile node;
  };
  Locked lookAndLock(const FoundPort& port);

  ParportFolder folder_;
};

/// How the lines of a port's control register stand, where the process may see that.
std::optional<std::uint8_t> controlPins(std::int32_t address);

}  // namespace monitra::ports
