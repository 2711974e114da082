#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/port_registers.h"
#include "platform/port_states.h"
#include "ports/control_memory.h"
#include "ports/port_driver.h"
#include "ports/register_memory.h"

namespace monitra::ports {

/// Which of the ports found serves an entry: the one at its address, or else one that is at no
/// entry's address; those go in the order of their numbers to the waiting entries that have no port
/// of their own, so that it doesn't matter which of them is asked for first.
std::optional<FoundPort> portFor(std::int32_t entry, std::span<const FoundPort> found,
                                 std::span<const std::int32_t> waiting);

/// The registers of the PC's real printer ports. The port of an entry is looked for and opened at
/// the first access to one of its registers, and held until it is lost or this is destroyed. A lost
/// one is never replaced by another port: what hangs on that is not the same machine.
///
/// An entry without a usable port takes writes and gives them back, and its port is looked for anew
/// when it is used again. That is at the beginning of a message, and outside of one at the first
/// access behind a pause, or now and then at one of the control register, which the generator's
/// tick begins with.
class PrinterPorts : public platform::PortRegisters, public platform::PortStates {
 public:
  using Clock = std::function<std::chrono::nanoseconds()>;

  /// The drivers in the order in which they are asked, at least one; they must outlive it. The
  /// clock is monotonic.
  PrinterPorts(
      std::vector<PortDriver*> drivers, ControlMemory memory,
      Clock clock = [] { return std::chrono::steady_clock::now().time_since_epoch(); });

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override;
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override;

  platform::PortState state(std::int32_t entry) override;
  void tryAgain(std::int32_t entry) override;
  void markMessage(bool begins) override { inMessage_ = messageStarts_ = begins; }
  long vanished() const override { return vanished_; }

 private:
  struct Entry {
    std::int32_t address;
    bool used = false;
    platform::PortState state = {};
    std::optional<FoundPort> chosen = {};  ///< from the first opening on, lost or not
    std::unique_ptr<OpenPort> port = {};
    std::chrono::nanoseconds lastAccess = {};
    std::chrono::nanoseconds lastOpening = {};
    std::chrono::nanoseconds lastCheck = {};
    std::optional<std::uint8_t> keptControl = {};
  };
  using Reach = std::function<Opening(PortDriver&, const FoundPort&)>;

  Entry* entryOf(std::int32_t address);
  void prepare(Entry& entry, Register which);
  void open(Entry& entry);
  std::optional<FoundPort> choose(const Entry& entry, std::vector<FoundPort> found) const;
  Opening findPort(const Entry& entry, const Reach& reach);
  void checkPresence(Entry& entry);
  void lose(Entry& entry);
  void become(Entry& entry, const platform::PortState& state, bool first);
  void keepControl(Entry& entry, std::uint8_t value);

  std::vector<PortDriver*> drivers_;
  ControlMemory memory_;
  Clock clock_;
  RegisterMemory registers_;
  std::array<Entry, entryAddresses.size()> entries_;
  bool inMessage_ = false;
  bool messageStarts_ = false;  ///< at the next access
  long vanished_ = 0;
};

}  // namespace monitra::ports
