#include <QApplication>
#include <QLabel>
#include <QMainWindow>

#include "first_frame.h"

/// The least that a program with a window of this toolkit can be, to compare starts with; with an
/// argument the window shows it, which is what loads the fonts.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  constexpr QSize asLargeAsTheProgram{730, 503};
  window.resize(asLargeAsTheProgram);
  if (argc > 1) new QLabel(QString::fromLocal8Bit(argv[1]), &window);
  new FirstFrame(&window);
  window.show();
  return QApplication::exec();
}
