#include "apps/window_program.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTimer>
#include <QTranslator>
#include <cstdlib>
#include <iostream>

#include "apps/named_file.h"
#include "desktop/end_watch.h"
#include "desktop/main_window.h"
#include "desktop/qt_file_dialog.h"
#include "desktop/qt_message_box.h"
#include "desktop/qt_remedy_box.h"
#include "host/executable.h"
#include "host/host_files.h"
#include "host/pacer.h"
#include "host/windows1250.h"
#include "settings/json_settings.h"
#include "signals/signals_window.h"
#include "widgets/accessibility.h"
#include "widgets/svg_icon.h"
#include "widgets/window_style.h"

namespace monitra::apps {

namespace {

/// On an X display, that of a Wayland session too, the window can be put in the middle of the
/// screen, and the loss of the display still leaves time to switch the motors off.
void preferX() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  }
}

/// What the window "Jelek" shows of the program: the selected port.
signals::Live liveSignals(shell::Lap& lap, platform::PortStates& ports) {
  const auto source = [&lap, &ports] {
    const bool simulated =
        ports.state(lap.selectedAddress()).kind == platform::PortState::Kind::Simulated;
    return QStringLiteral("%1: ami a(z) %2 portra kiment, és amit egy %3 vezérlő kiolvasna belőle.")
        .arg(simulated ? QStringLiteral("Szimulált port") : QStringLiteral("Élő"),
             QString::fromStdString(lap.port.LPT.text()),
             QString::fromStdString(lap.port.PCBV.Caption.get()));
  };
  return {[&lap]() -> const wire::Trace& { return lap.recorder().trace(lap.selectedAddress()); },
          [&lap] { lap.passTime(); }, source};
}

/// Opens the window at the button's click, or brings the open one to the front.
class SignalsButton {
 public:
  SignalsButton(shell::Lap& lap, platform::PortStates& ports) {
    lap.Jelek.Click.handle([this, &lap, &ports] {
      if (window_ == nullptr) {
        window_ = new signals::SignalsWindow(liveSignals(lap, ports));
        window_->setAttribute(Qt::WA_DeleteOnClose);
      }
      window_->show();
      window_->raise();
      window_->activateWindow();
    });
  }
  SignalsButton(const SignalsButton&) = delete;
  SignalsButton& operator=(const SignalsButton&) = delete;
  ~SignalsButton() { delete window_; }

 private:
  QPointer<signals::SignalsWindow> window_;
};

}  // namespace

int run(int argc, char** argv, const WindowProgram& program) {
  host::surviveWriteSignals();
  preferX();
  QApplication application(argc, argv);
  QApplication::setWindowIcon(widgets::svgIcon(QString::fromUtf8(program.icon)));
  QApplication::setStyle(new widgets::WindowStyle);
  QTranslator hungarian;
  if (hungarian.load(QStringLiteral("qtbase_hu"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(&hungarian);
  }

  widgets::installAccessibility();
  const platform::ProgramIdentity identity = host::programIdentity(program.title);
  host::Pacer pacer;
  host::HostFiles files;
  host::Windows1250 codePage;
  settings::JsonSettings settings(settings::userSettingsFolder());
  desktop::QtMessageBox box(QString::fromUtf8(program.title));
  desktop::QtFileDialog dialog;
  desktop::QtRemedyBox remedies(QString::fromUtf8(program.title));
  shell::Lap lap({program.registers, program.ports, pacer, box, remedies, dialog, files, codePage,
                  settings, identity, [] { QApplication::beep(); },
                  [] { std::_Exit(EXIT_SUCCESS); }});
  lap.Form_Load();
  const desktop::EndWatch watch([&lap] { lap.endWithoutQuestion(); });
  desktop::MainWindow window(lap);
  box.setParent(&window);
  remedies.setParent(&window);
  dialog.setParent(&window);
  const SignalsButton signalsButton(lap, program.ports);
  window.showCentred();
  if (program.started) program.started(lap);
  std::cout << lap.PortAllapot.Caption.get() << std::endl;
  QTimer::singleShot(0, &window, [&] {
    if (argc > 1) openNamed(lap, files, {argv + 1, argv + argc});
  });
  const int exitCode = QApplication::exec();
  lap.endWithoutQuestion();
  return exitCode;
}

}  // namespace monitra::apps
