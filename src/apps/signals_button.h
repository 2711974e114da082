#pragma once

#include <QPointer>

#include "platform/port_states.h"
#include "shell/lap.h"
#include "signals/signals_window.h"

namespace monitra::apps {

/// Has the button "Jelek…" open the window of that name, or bring the open one to the front. The
/// window shows the selected port.
class SignalsButton {
 public:
  /// Both must outlive it; the window ends with it at the latest.
  SignalsButton(shell::Lap& lap, platform::PortStates& ports);
  SignalsButton(const SignalsButton&) = delete;
  SignalsButton& operator=(const SignalsButton&) = delete;
  ~SignalsButton();

  /// Null while there is none.
  signals::SignalsWindow* window() const { return window_; }

 private:
  signals::Live live() const;

  shell::Lap& lap_;
  platform::PortStates& ports_;
  QPointer<signals::SignalsWindow> window_;
};

}  // namespace monitra::apps
