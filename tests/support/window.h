#pragma once

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "desktop/main_window.h"
#include "support/program.h"
#include "support/rows.h"

/// For the words of a failure.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace monitra::support {

/// The rows of a table, in words.
inline QList<QStringList> lines(const std::string& table) {
  QList<QStringList> found;
  for (const Row& row : rows(table)) found << QString::fromStdString(row[0]).split(' ');
  return found;
}

/// Counts the events of a type that an object gets from now on.
template <QEvent::Type type>
struct EventCount : QObject {
  explicit EventCount(QObject* watched) { watched->installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == type) ++count;
    return false;
  }
  int count = 0;
};

/// The started program in its real window, which is active; the journal begins behind the start.
struct Window : testing::Test, Program {
  Window() {
    lap.Form_Load();
    window = std::make_unique<desktop::MainWindow>(lap);
    window->showCentred();
    activate();
    journal.clear();
  }

  void activate() {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  /// The widget, menu or action of this name.
  template <class Object>
  Object* find(const char* name) {
    auto* const found = dynamic_cast<Object*>(window->findChild<QObject*>(QString::fromUtf8(name)));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  QWidget* widget(const QString& name) { return find<QWidget>(qPrintable(name)); }
  /// Puts a tab on top; what that sends is no part of the journal.
  void showTab(int tab) {
    find<QTabWidget>("SSTab1")->setCurrentIndex(tab);
    QApplication::processEvents();
    journal.clear();
  }

  std::unique_ptr<desktop::MainWindow> window;
};

}  // namespace monitra::support
