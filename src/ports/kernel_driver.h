#pragma once

#include "ports/parport_folder.h"
#include "ports/port_driver.h"

namespace monitra::ports {

/// Ports through the kernel's driver for programs, /dev/parport0 and on. It arbitrates: while a
/// port is open here, a print job waits.
class KernelDriver : public PortDriver {
 public:
  explicit KernelDriver(ParportFolder folder = ParportFolder()) : folder_(std::move(folder)) {}

  std::vector<FoundPort> find() override { return folder_.ports(); }
  platform::PortState none() const override;
  platform::PortState look(const FoundPort& port) override;
  Opening open(const FoundPort& port, std::optional<std::uint8_t> lastControl) override;

 private:
  bool hasPrinterDriverOnly(const FoundPort& port) const;
  platform::PortState of(const FoundPort& port, platform::PortState::Kind kind) const;
  platform::PortState refused(const FoundPort& port, int error) const;
  platform::PortState busy(const FoundPort& port) const;

  ParportFolder folder_;
};

}  // namespace monitra::ports
