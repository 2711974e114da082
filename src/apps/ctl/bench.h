#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "apps/ctl/commands.h"
#include "apps/ctl/session.h"
#include "apps/ctl/terminal.h"
#include "host/held_signals.h"
#include "host/pacer.h"
#include "ports/access_recorder.h"
#include "ports/real_ports.h"
#include "ports/register_memory.h"
#include "ports/simulated_port.h"

namespace monitra::ctl {

/// Registers that a port gets only once it is connected; until then nothing reaches it.
class Connection : public platform::PortRegisters {
 public:
  /// The port must outlive it.
  explicit Connection(platform::PortRegisters& port) : port_(port) {}

  void connect() { connected_ = true; }

  std::uint8_t DlPortReadPortUchar(std::int32_t address) override {
    return present().DlPortReadPortUchar(address);
  }
  void DlPortWritePortUchar(std::int32_t address, std::uint8_t value) override {
    present().DlPortWritePortUchar(address, value);
  }

 private:
  platform::PortRegisters& present() { return connected_ ? port_ : nowhere_; }

  platform::PortRegisters& port_;
  ports::RegisterMemory nowhere_;
  bool connected_ = false;
};

/// The program with the port that a command works on. Nothing touches the port before the user has
/// agreed to it.
class Bench {
 public:
  explicit Bench(const PortOptions& options);
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;
  /// A signal that has waited comes now, so what is printed must be out.
  ~Bench();

  /// Prints which port it will be and the pins of the serial line; or, to standard error, why there
  /// is none and what to do. Without questions a port and a board that nobody has chosen are a
  /// usage error: another board's pins move motors.
  ExitCode tellPort();

  /// Asks, and on Yes connects and does it; tells how that ended.
  ExitCode askAndDo(const std::string& question, const std::function<void()>& what);

  /// To be called at the end: tells, as a port error, what has gone out on no port, and as a usage
  /// error a question that nobody answered.
  ExitCode closing();

  shell::Lap& lap() { return session_.lap; }
  ExitCode openSetup(const std::string& path) { return session_.openSetup(path); }

  /// Accesses and waits since the port is connected, and the first of them behind the connecting.
  const std::vector<ports::PortEvent>& events() const { return recorder_.events(); }
  std::size_t firstSent() const { return firstSent_; }

 private:
  platform::PortStates& states();
  platform::PortRegisters& registers();
  platform::PortState state();
  platform::BoxAnswer answer(const std::string& text, int style);
  bool connect();
  void tellUnusable();

  PortOptions options_;
  std::optional<host::HeldSignals> heldSignals_;  ///< from the connecting on
  std::unique_ptr<ports::SimulatedPort> simulated_;
  std::unique_ptr<ports::RealPorts> real_;
  host::Pacer pacer_;
  ports::AccessRecorder recorder_;
  Connection connection_;
  Terminal terminal_;
  bool refused_ = false;
  bool isUnset_ = false;  ///< port or board come from nobody
  std::size_t firstSent_ = 0;
  Session session_;
};

}  // namespace monitra::ctl
