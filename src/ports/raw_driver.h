#pragma once

#include "ports/parport_folder.h"
#include "ports/port_driver.h"

namespace monitra::ports {

/// Ports by their registers, past the kernel's driver. Needs the right to use registers, which is
/// root's, and which a locked-down kernel gives to nobody. Only for PCs that have such registers.
class RawDriver : public PortDriver {
 public:
  explicit RawDriver(ParportFolder folder = ParportFolder()) : folder_(std::move(folder)) {}

  /// The ports that the kernel knows of, then those that answer at the three usual addresses.
  std::vector<FoundPort> find() override;
  platform::PortState none() override;
  platform::PortState look(const FoundPort& port) override;
  Opening open(const FoundPort& port, std::optional<std::uint8_t> lastControl) override;

 private:
  ParportFolder folder_;
};

}  // namespace monitra::ports
