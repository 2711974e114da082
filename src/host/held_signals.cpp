#include "host/held_signals.h"

#include <initializer_list>

namespace monitra::host {

HeldSignals::HeldSignals() {
  sigset_t held;
  ::sigemptyset(&held);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP}) ::sigaddset(&held, signal);
  ::pthread_sigmask(SIG_BLOCK, &held, &before_);
}

HeldSignals::~HeldSignals() {
  ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

}  // namespace monitra::host
