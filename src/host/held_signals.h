#pragma once

#include <csignal>

namespace monitra::host {

/// For as long as this lives, the thread's interruptions from the terminal and the requests to end
/// wait: what goes out on a wire must not stop halfway.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

 private:
  sigset_t before_{};
};

}  // namespace monitra::host
