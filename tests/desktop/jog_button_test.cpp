#include "widgets/jog_button.h"

#include <QTest>
#include <algorithm>

#include "support/window.h"
#include "widgets/tick_timer.h"

namespace monitra::desktop {
namespace {

using namespace support;
using namespace widgets;
using namespace std::chrono_literals;

/// The tab with the jog buttons, the generator on, and the left button of Y.
struct JogButtons : Window {
  JogButtons() {
    lap.jog.Seb.type("1000");
    startGenerator();
  }

  void startGenerator() {
    showTab(1);
    lap.jog.Impulzus.Value = true;
  }
  bool held() const { return lap.jog.Mozg[2].Held; }
  bool pulsed() const { return std::ranges::find(journal, "w378=30") != journal.end(); }
  void send(QEvent&& event) { QApplication::sendEvent(jog, &event); }
  void move() { send(QMouseEvent(QEvent::MouseMove, middle, global, {}, {}, {})); }
  /// Holds the button with the mouse until something happens.
  void comesUpBy(const char* interruption, const std::function<void()>& happens) {
    SCOPED_TRACE(interruption);
    window->showNormal();
    activate();
    startGenerator();
    QTest::mousePress(jog, Qt::RightButton, {}, middle);
    QTest::mouseMove(jog, {-90, -90});
    EXPECT_TRUE(QTest::qWaitFor([this] { return held() && pulsed(); }));
    happens();
    EXPECT_FALSE(held());
    journal.clear();
    QTest::qWait(5);
    EXPECT_FALSE(pulsed()) << "a pulse after the button came up";
    QTest::mouseRelease(jog, Qt::RightButton, {}, middle);
  }

  /// Whether it is held behind a step as the table "held" has them.
  bool heldAfter(QString step) {
    if (step == "mouse") {
      QTest::mousePress(jog, Qt::LeftButton, {}, middle);
    } else if (step == "released") {
      QTest::mouseRelease(jog, Qt::LeftButton, {}, middle);
    } else if (step == "over") {
      move();
    } else if (step == "reader") {
      access->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    } else if (step == "later") {
      QTest::qWait(2 * JogButton::keyMilliseconds);
      QApplication::processEvents();
    } else {
      const auto type = step.startsWith('+') ? QEvent::KeyPress : QEvent::KeyRelease;
      const bool repeated = step.endsWith('*');
      const QKeyCombination key = QKeySequence(step.mid(1).remove('*'))[0];
      send(QKeyEvent(type, key.key(), key.keyboardModifiers(), {}, repeated));
    }
    return held();
  }

  JogButton* const jog = find<JogButton>("Mozg(2)");
  const QPoint middle = jog->rect().center();
  const QPoint global = jog->mapToGlobal(middle);
  QAccessibleInterface* const access = QAccessible::queryAccessibleInterface(jog);
};

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
  comesUpBy("another window", [&] {
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(held());
  });
  comesUpBy("dialog", [&] {
    QMessageBox message(window.get());
    message.open();
    EXPECT_FALSE(held());
  });
  comesUpBy("menu", [&] {
    find<QMenu>("MB")->popup({});
    EXPECT_FALSE(held());
    find<QMenu>("MB")->close();
  });
  comesUpBy("tab", [&] {
    find<QTabWidget>("SSTab1")->setCurrentIndex(2);
    EXPECT_FALSE(lap.jog.Impulzus.Value || lap.jog.Timer1.Enabled);
  });
  comesUpBy("close", [&] {
    lap.setup.FolLe[0].pressUp();
    box.whileOpen = [this] { EXPECT_FALSE(held()); };
    window->close();
    EXPECT_EQ(journal.back(), "end");
  });
}

TEST_F(JogButtons, SpaceBarMouseAndScreenReaderHoldOneWhereItShows) {
  for (const QStringList& steps : lines("held")) {
    for (int n = 0; n + 1 < steps.size(); n += 2) {
      EXPECT_EQ(heldAfter(steps[n]), steps[n + 1] == "1") << steps.join(' ').toStdString() << n;
    }
  }
  EXPECT_EQ(access->role(), QAccessible::Button);
  QMessageBox message(window.get());
  message.open();
  EXPECT_FALSE(heldAfter("reader")) << "under a box";
  message.close();
  showTab(0);
  lap.jog.Impulzus.Value = true;
  EXPECT_FALSE(heldAfter("reader")) << "on a hidden tab";
  lap.jog.Impulzus.Value = false;
  EXPECT_FALSE(heldAfter("+Space")) << "disabled";
}

TEST_F(JogButtons, OneLooksHeldWhileItIsAndPointsWhereItMoves) {
  const auto look = [this] { return jog->grab().toImage(); };
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
  EXPECT_TRUE(held());
  window.reset();
  EXPECT_FALSE(held()) << "nobody could let it go any more";
}

TEST(TickSchedule, KeepsToItsGridAndMakesUpALateTickWithoutABurst) {
  for (const Row& row : rows("ticks")) {
    TickSchedule schedule(7ms, 90us);
    const auto at = [](const std::string& text) { return 7ms + std::stoi(text) * 1us; };
    for (std::size_t n = 0; n + 1 < row.size(); ++n) schedule.ticked(at(row[n]));
    EXPECT_EQ(schedule.due(), at(row.back())) << row.back();
  }
}

TEST(TickTimer, TicksAtItsIntervalAndStartsANewOneAtOnce) {
  controls::Timer timer;
  const TickTimer ticking(timer);
  int ticks = 0;
  timer.Tick.handle([&ticks] { ++ticks; });
  timer.Interval = 60000;
  timer.Enabled = true;
  const auto start = std::chrono::steady_clock::now();
  timer.Interval = 6;
  EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks >= 20; }));
  EXPECT_GE(std::chrono::steady_clock::now() - start, 20 * 6ms * 2 / 3) << "they come too close";
}

}  // namespace
}  // namespace monitra::desktop
