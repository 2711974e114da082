#pragma once

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace monitra::desktop {

/// Calls a function once when the process is asked to end from outside: by SIGTERM, SIGINT or
/// SIGHUP, by the end of the desktop session, or by the loss of the display. The call comes from
/// the event loop, between two events; at the loss of the display from inside exit().
/// One object for each process, made after the application.
class EndWatch : public QObject {
  Q_OBJECT

 public:
  explicit EndWatch(std::function<void()> end, QObject* parent = nullptr);

 private:
  QSocketNotifier* notifier_;
};

}  // namespace monitra::desktop
