#include "apps/signals_button.h"

#include "widgets/text.h"

namespace monitra::apps {

SignalsButton::SignalsButton(shell::Lap& lap, platform::PortStates& ports)
    : lap_(lap), ports_(ports) {
  lap.Jelek.Click.handle([this] {
    if (window_ == nullptr) {
      window_ = new signals::SignalsWindow(live());
      window_->setAttribute(Qt::WA_DeleteOnClose);
    }
    window_->show();
    window_->raise();
    window_->activateWindow();
  });
}

SignalsButton::~SignalsButton() {
  lap_.Jelek.Click.handle({});
  delete window_;
}

signals::Live SignalsButton::live() const {
  using Kind = platform::PortState::Kind;
  const bool simulated = ports_.state(lap_.selectedAddress()).kind == Kind::Simulated;
  const auto source = [this, simulated] {
    return QStringLiteral("%1: ami a(z) %2 portra kiment, és amit egy %3 vezérlő kiolvasna belőle.")
        .arg(simulated ? QStringLiteral("Szimulált port") : QStringLiteral("Élő"),
             widgets::toQt(lap_.port.LPT.text()), widgets::toQt(lap_.port.PCBV.Caption.get()));
  };
  return {[this]() -> const wire::Trace& { return lap_.recorder().trace(lap_.selectedAddress()); },
          [this] { lap_.passTime(); }, source};
}

}  // namespace monitra::apps
