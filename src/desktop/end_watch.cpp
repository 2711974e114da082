#include "desktop/end_watch.h"

#include <QGuiApplication>
#include <QSocketNotifier>
#include <array>
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
  const char token = 0;
  [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &token, 1);
}

}  // namespace

EndWatch::EndWatch(std::function<void()> end, QObject* parent)
    : QObject(parent), notifier_(nullptr) {
  endOnce = std::move(end);
  if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) == 0) {
    notifier_ = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [] { runOnce(); });
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
  }
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [] { runOnce(); }, Qt::DirectConnection);
  // The toolkit calls exit() when its display has gone.
  std::atexit(runOnce);
}

}  // namespace monitra::desktop
