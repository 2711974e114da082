#include "desktop/end_watch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace monitra::desktop {

namespace {

std::array<int, 2> signalPipe{-1, -1};
std::function<void()> endOnce;

void runOnce() {
  if (const auto end = std::exchange(endOnce, nullptr)) end();
}

void onSignal(int /*signal*/) {
  const int error = errno;
  const char token = 0;
  [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &token, 1);
  errno = error;
}

void catchSignals() {
  struct sigaction action {};
  action.sa_handler = onSignal;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGINT, SIGQUIT, SIGHUP}) {
    struct sigaction before {};
    ::sigaction(signal, nullptr, &before);
    if (signal == SIGHUP && before.sa_handler == SIG_IGN) continue;
    ::sigaction(signal, &action, nullptr);
  }
}

}  // namespace

EndWatch::EndWatch(std::function<void()> end, QObject* parent) : QObject(parent) {
  endOnce = std::move(end);
  if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
    auto* const notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [] { runOnce(); });
    catchSignals();
  }
  QCoreApplication::instance()->installEventFilter(this);
  // The toolkit calls exit() when its X display has gone.
  std::atexit(runOnce);
}

bool EndWatch::eventFilter(QObject* watched, QEvent* event) {
  // The program never quits its own loop, so this is the session's word to end.
  if (watched != QCoreApplication::instance() || event->type() != QEvent::Quit) return false;
  runOnce();
  return true;
}

}  // namespace monitra::desktop
