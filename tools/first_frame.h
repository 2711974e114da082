#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

/// Ends the process once its window's first frame is painted, behind a line with the monotonic time
/// in milliseconds and the most memory that the process has taken until then, in KiB.
class FirstFrame : public QObject {
 public:
  explicit FirstFrame(QWidget* window) : QObject(window) { window->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    // The frame is complete when the event that paints the window is over.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, this, [] { tell(); });
    return false;
  }

 private:
  static void tell() {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    const Milliseconds now = std::chrono::steady_clock::now().time_since_epoch();
    const std::string key = "VmHWM:";
    std::string memory;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
      if (line.compare(0, key.size(), key) == 0) memory = line.substr(key.size());
    }
    std::printf("%.3f %ld\n", now.count(), std::strtol(memory.c_str(), nullptr, 10));
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
  }
};
