#include <QApplication>
#include <QMainWindow>

#include "first_frame.h"

/// The least that a program with a window of this toolkit can be, to compare starts with.
int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  constexpr QSize asLargeAsTheProgram{777, 523};
  window.resize(asLargeAsTheProgram);
  new FirstFrame(&window);
  window.show();
  return QApplication::exec();
}
