#include "apps/window_program.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>
#include <cstdlib>
#include <iostream>

#include "apps/comparison_button.h"
#include "apps/named_file.h"
#include "apps/signals_button.h"
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
#include "settings/upload_folder.h"
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

/// Sounds that come together would be heard one after the other for seconds: they are one.
void beepOnce() {
  constexpr qint64 together = 120;  // ms
  static QElapsedTimer last;
  if (last.isValid() && last.elapsed() < together) return;
  last.start();
  QApplication::beep();
}

/// Where the toolkit's own words are translated. The translator must outlive their use.
void speakHungarian(QTranslator& words) {
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (words.load(QStringLiteral("qtbase_hu"), folder)) QApplication::installTranslator(&words);
}

}  // namespace

int run(int argc, char** argv, const WindowProgram& program) {
  host::surviveWriteSignals();
  preferX();
  QApplication application(argc, argv);
  QApplication::setWindowIcon(widgets::svgIcon(QString::fromUtf8(program.icon)));
  QApplication::setDesktopFileName(QString::fromUtf8(program.entry));
  QApplication::setStyle(new widgets::WindowStyle);
  QTranslator words;
  speakHungarian(words);

  widgets::installAccessibility();
  const platform::ProgramIdentity identity = host::programIdentity(program.title);
  host::Pacer pacer;
  host::HostFiles files;
  host::Windows1250 codePage;
  settings::JsonSettings settings(settings::userSettingsFolder());
  settings::UploadFolder uploads(settings::uploadFolder(identity.EXEName));
  desktop::QtMessageBox box(QString::fromUtf8(program.title));
  desktop::QtFileDialog dialog;
  desktop::QtRemedyBox remedies(QString::fromUtf8(program.title));
  shell::Lap lap({program.registers, program.ports, pacer, box, remedies, dialog, files, codePage,
                  settings, uploads, identity, beepOnce, [] { std::_Exit(EXIT_SUCCESS); }});
  lap.Form_Load();
  const desktop::EndWatch watch([&lap] { lap.endWithoutQuestion(); });
  desktop::MainWindow window(lap);
  box.setParent(&window);
  remedies.setParent(&window);
  dialog.setParent(&window);
  const SignalsButton signalsButton(lap, program.ports);
  const ComparisonButton comparisonButton(lap);
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
