#include <QApplication>
#include <QDir>
#include <QTabWidget>
#include <QTableView>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "apps/comparison_button.h"
#include "apps/signals_button.h"
#include "desktop/main_window.h"
#include "host/executable.h"
#include "support/program.h"
#include "widgets/window_style.h"

/// Renders each tab of the started window, and the windows beside it, into a PNG:
///   render_tabs FOLDER SUFFIX SETUP [--dark]
/// The scale is the toolkit's (QT_SCALE_FACTOR), the platform best offscreen with a large screen.
namespace {

using namespace monitra;

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

/// Leaves something on the port: a square of steps, two windings and two Setups.
void work(support::Program& program) {
  shell::Lap& lap = program.lap;
  lap.SSTab1.Tab = 1;
  lap.jog.Impulzus.click();
  for (const int way : {0, 3, 1, 4, 2, 0}) {
    lap.jog.Mozg[way].press();
    for (int n = 0; n < 40; ++n) {
      program.registers.time += std::chrono::milliseconds(10);
      lap.jog.Timer1.tick();
    }
    lap.jog.Mozg[way].release();
  }
  lap.jog.Impulzus.click();
  for (const int line : {0, 10}) {
    program.registers.time += std::chrono::milliseconds(700);
    lap.phases.L[line].click();
  }
  lap.SSTab1.Tab = 0;
  for (int n = 0; n < 2; ++n) {
    program.registers.time += std::chrono::seconds(1);
    lap.setup.FolLe[3].pressUp();
    lap.setup.Letolt.click();
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc < 4) return EXIT_FAILURE;
  QApplication::setStyle(new widgets::WindowStyle);
  if (argc > 4) QApplication::setPalette(darkColours());

  support::Program program;
  const std::filesystem::path beside = host::programIdentity("").Path;
  std::error_code missing;
  std::filesystem::copy_file(beside / "Info.txt", program.scratch.path("Info.txt"), missing);
  program.ports.now.kind = platform::PortState::Kind::Simulated;
  program.lap.Form_Load();
  desktop::MainWindow window(program.lap);
  window.showCentred();
  const auto save = [&](QWidget& shown, const char* name) {
    QApplication::processEvents();
    const QString file =
        QDir(QString::fromLocal8Bit(argv[1]))
            .filePath(QStringLiteral("%1%2.png").arg(QLatin1String(name), QLatin1String(argv[2])));
    if (shown.grab().save(file)) return true;
    std::cerr << "can't write " << file.toStdString() << '\n';
    return false;
  };
  const char* const names[] = {"motor-setup", "teszt", "pc-link", "info"};
  bool saved = true;
  for (int tab = 0; tab < 4; ++tab) {
    program.lap.SSTab1.Tab = tab;
    saved = save(window, names[tab]) && saved;
  }
  work(program);
  apps::SignalsButton button(program.lap, program.ports);
  program.lap.Jelek.click();
  signals::SignalsWindow& signalsWindow = *button.window();
  auto* const messages = signalsWindow.findChildren<QTableView*>().front();
  messages->selectRow(2);
  messages->scrollToTop();
  saved = save(signalsWindow, "jelek") && saved;
  signalsWindow.close();

  program.lap.setup.FolLe[5].Value = 190;
  for (int n = 0; n < 6; ++n) program.lap.setup.FolLe[9].pressUp();
  apps::ComparisonButton comparison(program.lap);
  program.lap.MentesJel.click();
  compare::ComparisonWindow& compared = *comparison.window();
  compared.add({QString::fromLocal8Bit(argv[3])});
  saved = save(compared, "osszevetes") && saved;
  compared.findChild<QTabWidget*>()->setCurrentIndex(1);
  saved = save(compared, "elozmenyek") && saved;
  return saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
