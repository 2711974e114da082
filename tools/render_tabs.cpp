#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "desktop/main_window.h"
#include "host/executable.h"
#include "support/program.h"
#include "widgets/window_style.h"

/// Renders each tab of the started window into a PNG: render_tabs FOLDER SUFFIX [--dark]
/// The scale is the toolkit's (QT_SCALE_FACTOR), the platform best offscreen with a large screen.
namespace {

QPalette darkColours() {
  QPalette colours(QColor(0x35, 0x35, 0x35));
  const QColor words(0xF0, 0xF0, 0xF0);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::BrightText}) {
    colours.setColor(role, words);
  }
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, QColor(0x8C, 0x8C, 0x8C));
  }
  colours.setColor(QPalette::Base, QColor(0x25, 0x25, 0x25));
  colours.setColor(QPalette::ToolTipBase, QColor(0x2C, 0x2C, 0x24));
  colours.setColor(QPalette::Highlight, QColor(0x2A, 0x72, 0xC8));
  return colours;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace monitra;
  const QApplication application(argc, argv);
  if (argc < 3) return EXIT_FAILURE;
  QApplication::setStyle(new widgets::WindowStyle);
  if (argc > 3) QApplication::setPalette(darkColours());

  support::Program program;
  const std::filesystem::path beside = host::programIdentity("").Path;
  std::error_code missing;
  std::filesystem::copy_file(beside / "Info.txt", program.scratch.path("Info.txt"), missing);
  program.ports.now.kind = platform::PortState::Kind::Simulated;
  program.lap.Form_Load();
  desktop::MainWindow window(program.lap);
  window.showCentred();
  const char* const names[] = {"motor-setup", "teszt", "pc-link", "info"};
  int tab = 0;
  for (const char* const name : names) {
    program.lap.SSTab1.Tab = tab++;
    QApplication::processEvents();
    const QString file =
        QDir(QString::fromLocal8Bit(argv[1]))
            .filePath(QStringLiteral("%1%2.png").arg(QLatin1String(name), QLatin1String(argv[2])));
    if (!window.grab().save(file)) {
      std::cerr << "can't write " << file.toStdString() << '\n';
      return EXIT_FAILURE;
    }
  }
  return EXIT_SUCCESS;
}
