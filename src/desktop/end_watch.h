#pragma once

#include <QObject>
#include <functional>

namespace monitra::desktop {

/// Calls a function once when the process is told to end from outside: by SIGTERM, SIGINT,
/// SIGQUIT or SIGHUP (unless that was ignored from the start, as under nohup), by the desktop
/// session at its end, or by the loss of an X display. The call comes from the event loop, between
/// two events; at the loss of the display from inside exit(). A session that only asks for data to
/// be kept ends nothing. One object for each process, made after the application.
class EndWatch : public QObject {
 public:
  explicit EndWatch(std::function<void()> end, QObject* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace monitra::desktop
