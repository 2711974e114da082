#pragma once

#include <QTest>
#include <gtest/gtest.h>
#include <memory>

#include "desktop/main_window.h"
#include "support/program.h"

namespace monitra::support {

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
  template <class Widget>
  Widget* find(const char* name) {
    auto* const widget = window->findChild<Widget*>(QString::fromUtf8(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  std::unique_ptr<desktop::MainWindow> window;
};

}  // namespace monitra::support
