#include "desktop/jog_button.h"

#include <QTest>
#include <algorithm>

#include "desktop/tick_timer.h"
#include "support/rows.h"
#include "support/window.h"

namespace monitra::desktop {
namespace {

using namespace support;
using namespace std::chrono_literals;

/// The tab with the jog buttons, and the left one of Y on it.
struct JogButtons : Window {
  JogButtons() { showTab(1); }

  void startGenerator(const char* rate) {
    lap.jog.Seb.type(rate);
    lap.jog.Impulzus.click();
    EXPECT_TRUE(lap.jog.Impulzus.Value);
  }
  bool held() const { return lap.jog.Mozg[2].Held; }
  bool pulsed() const { return std::ranges::find(journal, "w378=30") != journal.end(); }
  void comesUpBy(const char* interruption, const std::function<void()>& happens);
  /// What the user sees come up must find the button up already.
  void closeNext(QWidget* (*shown)()) {
    QTimer::singleShot(0, [this, shown] {
      EXPECT_FALSE(held());
      shown()->close();
    });
  }
  /// Each tells whether it is held then.
  bool send(QEvent&& event) {
    QApplication::sendEvent(jog, &event);
    return held();
  }
  bool key(QEvent::Type type, bool repeated) {
    return send(QKeyEvent(type, Qt::Key_Space, {}, {}, repeated));
  }
  bool press(bool repeated) { return key(QEvent::KeyPress, repeated); }
  bool release(bool repeated) { return key(QEvent::KeyRelease, repeated); }
  bool move() { return send(QMouseEvent(QEvent::MouseMove, middle, global, {}, {}, {})); }

  JogButton* const jog = find<JogButton>("Mozg(2)");
  const QPoint middle = jog->rect().center();
  const QPoint global = jog->mapToGlobal(middle);
};

/// Holds the button with the mouse until something happens.
void JogButtons::comesUpBy(const char* interruption, const std::function<void()>& happens) {
  SCOPED_TRACE(interruption);
  window->showNormal();
  activate();
  showTab(1);
  startGenerator("1000");
  QTest::mousePress(jog, Qt::RightButton, {}, middle);
  QTest::mouseMove(jog, {-90, -90});
  EXPECT_TRUE(QTest::qWaitFor([this] { return held() && pulsed(); }));
  happens();
  EXPECT_FALSE(held());
  journal.clear();
  QTest::qWait(5);
  EXPECT_FALSE(pulsed()) << "a pulse after the button came up";
  QTest::mouseRelease(jog, Qt::RightButton, {}, middle);
  lap.jog.Impulzus.Value = false;
}

TEST_F(JogButtons, AHeldOneComesUpByMouseKeyAndEachSignThatNoReleaseMightCome) {
  comesUpBy("release", [&] { QTest::mouseRelease(jog, Qt::LeftButton, {}, middle); });
  comesUpBy("release outside", [&] { QTest::mouseRelease(jog, Qt::LeftButton, {}, {-90, -90}); });
  comesUpBy("a move without a button", [&] { move(); });
  comesUpBy("the mouse back without one", [&] { send(QEnterEvent(middle, middle, global)); });
  comesUpBy("a key", [&] { QTest::keyClick(jog, Qt::Key_Escape); });
  comesUpBy("the focus elsewhere", [&] { widget("Seb")->setFocus(); });
  comesUpBy("minimised", [&] { window->showMinimized(); });
  comesUpBy("hidden", [&] { window->hide(); });
  for (const auto sign : {QEvent::FocusOut, QEvent::UngrabMouse, QEvent::Hide,
                          QEvent::WindowBlocked, QEvent::WindowStateChange, QEvent::Close}) {
    comesUpBy(qPrintable(QString::number(sign)), [&] { send(QEvent(sign)); });
  }
}

TEST_F(JogButtons, AHeldOneComesUpAheadOfAnyWindow) {
  comesUpBy("another window", [&] {
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(held());
  });
  comesUpBy("dialog", [&] {
    closeNext(&QApplication::activeModalWidget);
    QMessageBox(window.get()).exec();
  });
  comesUpBy("menu", [&] {
    closeNext(&QApplication::activePopupWidget);
    find<QMenu>("MB")->exec();
  });
  comesUpBy("tab", [&] { lap.SSTab1.Tab = 2; });
  comesUpBy("close", [&] {
    lap.setup.FolLe[0].pressUp();
    box.whileOpen = [this] { EXPECT_FALSE(held()); };
    window->close();
    EXPECT_EQ(journal.back(), "end");
  });
}

TEST_F(JogButtons, TheSpaceBarHoldsOneOnlyWhileItRepeats) {
  startGenerator("5000");
  EXPECT_TRUE(press(false));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !held(); })) << "a release that never comes";
  EXPECT_TRUE(press(true)) << "a repetition of the same press";
  EXPECT_TRUE(release(true)) << "the keyboard repeats a key as presses and releases";
  EXPECT_TRUE(send(QKeyEvent(QEvent::KeyRelease, Qt::Key_Shift, {}))) << "another key";
  EXPECT_FALSE(release(false));
  for (const auto& [code, modifier] :
       {std::pair(Qt::Key_Escape, Qt::NoModifier), std::pair(Qt::Key_Space, Qt::ControlModifier)}) {
    EXPECT_TRUE(press(false));
    EXPECT_FALSE(send(QKeyEvent(QEvent::KeyPress, code, modifier)));
    EXPECT_FALSE(press(true)) << "a repetition starts nothing";
  }
  lap.jog.Impulzus.click();
  EXPECT_FALSE(press(false)) << "disabled";
}

TEST_F(JogButtons, MouseAndSpaceBarDoNotTakeOverFromEachOther) {
  startGenerator("5000");
  press(false);
  EXPECT_TRUE(move()) << "the mouse passing over it doesn't matter";
  release(false);
  QTest::mousePress(jog, Qt::LeftButton, {}, middle);
  EXPECT_FALSE(press(false)) << "any key lets go what the mouse holds";
  EXPECT_FALSE(press(true)) << "and its repetition doesn't start it again";
  QTest::mouseRelease(jog, Qt::LeftButton, {}, middle);
  press(false);
  QTest::mousePress(jog, Qt::LeftButton, {}, middle);
  QTest::qWait(2 * JogButton::keyMilliseconds);
  EXPECT_TRUE(held()) << "what the mouse holds doesn't come up by itself";
  EXPECT_TRUE(release(false));
}

TEST_F(JogButtons, AScreenReaderPressesOneForAMomentWhereItShows) {
  auto* const access = QAccessible::queryAccessibleInterface(jog);
  EXPECT_EQ(access->role(), QAccessible::Button);
  const auto holds = [&] {
    access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return held();
  };
  startGenerator("5000");
  EXPECT_TRUE(holds());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !held(); }));
  QMessageBox message(window.get());
  message.open();
  EXPECT_FALSE(holds()) << "under a box";
  message.close();
  showTab(0);
  lap.jog.Impulzus.Value = true;
  EXPECT_FALSE(holds()) << "on a hidden tab";
}

TEST_F(JogButtons, OneLooksHeldWhileItIsAndPointsWhereItMoves) {
  const auto look = [this] { return jog->grab().toImage(); };
  startGenerator("5000");
  const QImage up = look();
  const EventCount<QEvent::Paint> paints(jog);
  lap.jog.Mozg[2].press();
  QApplication::processEvents();
  EXPECT_EQ(paints.count, 1);
  EXPECT_NE(look(), up);
  constexpr QPoint heads[] = {{4, -3}, {4, 3}, {-3, 4}, {3, 4}, {4, -3}, {4, 3}};
  for (int i = 0; i < 6; ++i) {
    const QImage image = widget(QStringLiteral("Mozg(%1)").arg(i))->grab().toImage();
    const auto light = [&](QPoint at) { return image.pixelColor(middle + at).lightness(); };
    EXPECT_LT(light(heads[i]) + 100, light(-heads[i])) << i << ": head and beside the stem";
  }
}

TEST(TickSchedule, KeepsToItsGridAndMakesUpALateTickWithoutABurst) {
  for (const Row& row : rows("ticks")) {
    TickSchedule schedule(7ms, 90us);
    const auto at = [](const std::string& text) { return 7ms + std::stoi(text) * 1us; };
    for (std::size_t n = 0; n + 1 < row.size(); ++n) schedule.ticked(at(row[n]));
    EXPECT_EQ(schedule.due(), at(row.back())) << row.back();
  }
}

TEST(TickTimer, TicksWhileItIsEnabledWithAnIntervalAboveZero) {
  controls::Timer timer;
  const TickTimer ticking(timer);
  int ticks = 0;
  timer.Tick.handle([&] { timer.Enabled = ++ticks != 20; });
  timer.Interval = 0;
  timer.Enabled = true;
  QTest::qWait(20);
  EXPECT_EQ(ticks, 0);
  const auto start = std::chrono::steady_clock::now();
  timer.Interval = 6;
  EXPECT_TRUE(QTest::qWaitFor([&timer] { return !timer.Enabled; }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, 20 * 6ms * 2 / 3) << "they come too close";
  QTest::qWait(20);
  EXPECT_EQ(ticks, 20);
  timer.Interval = 60000;
  timer.Enabled = true;
  timer.Interval = 2;
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 20; })) << "a new interval starts at once";
}

}  // namespace
}  // namespace monitra::desktop
