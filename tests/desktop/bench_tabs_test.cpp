#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "desktop/jog_button.h"
#include "desktop/led_bar.h"
#include "desktop/qt_message_box.h"
#include "support/window.h"

namespace monitra::desktop {
namespace {

struct BenchTabs : support::Window {
  void showTab(int tab) {
    find<QTabWidget>("SSTab1")->setCurrentIndex(tab);
    journal.clear();
  }
  void click(const char* name) {
    auto* const button = find<QAbstractButton>(name);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
  }
  /// The generator on, at a rate that doesn't tick.
  void startGenerator() {
    lap.jog.Seb.type("5000");
    click("Impulzus");
    EXPECT_TRUE(lap.jog.Impulzus.Value);
  }
  bool held() const { return lap.jog.Mozg[2].Held; }
};

TEST_F(BenchTabs, AHeldJogButtonComesUpWhateverInterruptsIt) {
  QtMessageBox realBox(QStringLiteral("Monitra Setup"));
  realBox.setParent(window.get());
  auto* const jog = find<JogButton>("Mozg(2)");
  const QPoint middle = jog->rect().center();
  const auto send = [jog](QEvent::Type type) {
    QEvent event(type);
    QApplication::sendEvent(jog, &event);
  };
  // What the user sees come up must find the button up already.
  const auto whenShown = [this](QWidget* (*shown)()) {
    QTimer::singleShot(0, [this, shown] {
      EXPECT_FALSE(held());
      shown()->close();
    });
  };
  const std::pair<const char*, std::function<void()>> interruptions[] = {
      {"release", [&] { QTest::mouseRelease(jog, Qt::LeftButton, {}, middle); }},
      {"release outside",
       [&] {
         QTest::mouseRelease(jog, Qt::LeftButton, {}, {-90, -90});
       }},
      {"a move without a button",
       [&] {
         QMouseEvent move(QEvent::MouseMove, middle, jog->mapToGlobal(middle), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
         QApplication::sendEvent(jog, &move);
       }},
      {"the mouse back without a button",
       [&] {
         QEnterEvent enter(middle, middle, jog->mapToGlobal(middle));
         QApplication::sendEvent(jog, &enter);
       }},
      {"the focus elsewhere", [&] { find<QLineEdit>("Seb")->setFocus(); }},
      {"lost grab", [&] { send(QEvent::UngrabMouse); }},
      {"a key", [&] { QTest::keyClick(jog, Qt::Key_Escape); }},
      {"minimised", [&] { window->showMinimized(); }},
      {"hidden", [&] { window->hide(); }},
      {"another window",
       [&] {
         QWidget other;
         other.show();
         other.activateWindow();
         EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
         EXPECT_FALSE(held());
       }},
      {"dialog",
       [&] {
         whenShown(&QApplication::activeModalWidget);
         realBox.MsgBox("?", platform::box_style::okOnly);
       }},
      {"menu",
       [&] {
         whenShown(&QApplication::activePopupWidget);
         find<QMenu>("MB")->exec();
       }},
      {"generator off", [&] { lap.jog.Impulzus.click(); }},
      {"tab",
       [&] { QTest::keyClick(find<QTabWidget>("SSTab1"), Qt::Key_Tab, Qt::ControlModifier); }},
      {"signal", [&] { lap.endWithoutQuestion(); }},
      {"close", [&] {
         lap.setup.FolLe[0].pressUp();
         box.whileOpen = [this] { EXPECT_FALSE(held()); };
         window->close();
         box.whileOpen = nullptr;
       }}};
  const auto pulsed = [this] {
    return std::find(journal.begin(), journal.end(), "w378=30") != journal.end();
  };
  for (const auto& [name, interrupt] : interruptions) {
    SCOPED_TRACE(name);
    window->showNormal();
    activate();
    showTab(1);
    QApplication::processEvents();
    lap.jog.Seb.type("1000");
    lap.jog.Impulzus.click();
    QTest::mousePress(jog, Qt::RightButton, {}, middle);
    QTest::mouseMove(jog, {-90, -90});
    EXPECT_TRUE(held());
    EXPECT_TRUE(QTest::qWaitFor(pulsed));
    interrupt();
    EXPECT_FALSE(held());
    journal.clear();
    QTest::qWait(5);
    EXPECT_FALSE(pulsed()) << "a pulse after the button came up";
    QTest::mouseRelease(jog, Qt::RightButton, {}, middle);
    lap.jog.Impulzus.Value = false;
  }
}

TEST_F(BenchTabs, TheSpaceBarHoldsAJogButtonOnlyWhileItRepeats) {
  showTab(1);
  startGenerator();
  auto* const jog = find<JogButton>("Mozg(2)");
  jog->setFocus();
  const auto key = [jog](QEvent::Type type, int code, bool repeated) {
    QKeyEvent event(type, code, Qt::NoModifier, {}, repeated);
    QApplication::sendEvent(jog, &event);
  };
  const auto press = [&key](bool repeated) { key(QEvent::KeyPress, Qt::Key_Space, repeated); };
  press(false);
  EXPECT_TRUE(held());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !held(); })) << "a release that never comes";
  press(true);
  EXPECT_TRUE(held()) << "a repetition of the same press";
  key(QEvent::KeyRelease, Qt::Key_Space, true);
  EXPECT_TRUE(held()) << "the keyboard repeats a key as presses and releases";
  key(QEvent::KeyRelease, Qt::Key_Space, false);
  EXPECT_FALSE(held());
  for (const auto& [code, modifier] :
       {std::pair(Qt::Key_Escape, Qt::NoModifier), std::pair(Qt::Key_Space, Qt::ControlModifier)}) {
    press(false);
    QTest::keyPress(jog, code, modifier);
    EXPECT_FALSE(held());
    press(true);
    EXPECT_FALSE(held()) << "a repetition starts nothing";
    QTest::keyRelease(jog, code, modifier);
  }
  const QPoint middle = jog->rect().center();
  press(false);
  QTest::mouseMove(jog, middle);
  QTest::mouseMove(jog, middle + QPoint(2, 2));
  EXPECT_TRUE(held()) << "the mouse passing over it doesn't matter";
  key(QEvent::KeyRelease, Qt::Key_Space, false);
  QTest::mousePress(jog, Qt::LeftButton, {}, middle);
  press(false);
  EXPECT_FALSE(held()) << "any key lets go what the mouse holds";
  press(true);
  EXPECT_FALSE(held()) << "and its repetition doesn't start it again";
  QTest::mouseRelease(jog, Qt::LeftButton, {}, middle);
  press(false);
  QTest::mousePress(jog, Qt::LeftButton, {}, middle);
  QTest::qWait(2 * JogButton::keyMilliseconds);
  EXPECT_TRUE(held()) << "what the mouse holds doesn't come up by itself";
  key(QEvent::KeyRelease, Qt::Key_Space, false);
  EXPECT_TRUE(held());
  lap.jog.Impulzus.click();
  press(false);
  EXPECT_FALSE(held()) << "disabled";
}

TEST_F(BenchTabs, AJogButtonLooksHeldWhileItIs) {
  class Paints : public QObject {
   public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
      if (event->type() == QEvent::Paint) ++count;
      return false;
    }
    int count = 0;
  } paints;
  showTab(1);
  startGenerator();
  auto* const jog = find<JogButton>("Mozg(2)");
  const auto look = [jog] { return jog->grab().toImage(); };
  const QImage unfocused = look();
  jog->setFocus();
  QApplication::processEvents();
  const QImage up = look();
  EXPECT_NE(up, unfocused);
  jog->installEventFilter(&paints);
  lap.jog.Mozg[2].press();
  QApplication::processEvents();
  EXPECT_EQ(std::exchange(paints.count, 0), 1);
  EXPECT_NE(look(), up);
  paints.count = 0;
  lap.jog.Mozg[2].release();
  QApplication::processEvents();
  EXPECT_EQ(paints.count, 1);
  EXPECT_EQ(look(), up);
  jog->removeEventFilter(&paints);
}

TEST_F(BenchTabs, AToggleWithoutAClickReachesTheControl) {
  const auto toggle = [this](const char* name) { find<QAbstractButton>(name)->toggle(); };
  showTab(1);
  toggle("Bitcim(0)");
  EXPECT_TRUE(lap.port.Bitcim[0].Checked);
  toggle("Impulzus");
  EXPECT_TRUE(lap.jog.Impulzus.Value && lap.jog.Timer1.Enabled);
  toggle("Bitcim(1)");
  EXPECT_FALSE(lap.port.Bitcim[1].Checked || find<QCheckBox>("Bitcim(1)")->isChecked())
      << "disabled while the generator runs";
  toggle("Impulzus");
  EXPECT_FALSE(lap.jog.Impulzus.Value || find<QPushButton>("Impulzus")->isChecked());
  showTab(2);
  toggle("L(0)");
  EXPECT_TRUE(lap.phases.L[0].Value);
  EXPECT_EQ(std::count(journal.begin(), journal.end(), "z1"), 6 * 24);
  toggle("L(0)");
  EXPECT_TRUE(find<QRadioButton>("L(0)")->isChecked());
  EXPECT_FALSE(find<QRadioButton>("L(6)")->isChecked());
}

TEST_F(BenchTabs, TheRowOfTabsStopsTheGeneratorHoweverTheTabIsChanged) {
  auto* const tabs = find<QTabWidget>("SSTab1");
  const std::function<void()> ways[] = {
      [&] {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(2).center());
      },
      [&] {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
      },
      [&] { QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier); },
      [&] { tabs->tabBar()->setFocus(); },
      [&] { tabs->setCurrentIndex(2); },
      [&] {
        tabs->tabBar()->setFocus();
        lap.jog.Impulzus.click();
        QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
      }};
  for (const auto& change : ways) {
    showTab(1);
    startGenerator();
    change();
    EXPECT_FALSE(lap.jog.Impulzus.Value || lap.jog.Timer1.Enabled);
    EXPECT_TRUE(tabs->tabBar()->hasFocus());
    EXPECT_EQ(journal, tabs->currentIndex() == 2 ? (support::Journal{"r378", "w378=0"})
                                                 : support::Journal{});
  }
}

TEST_F(BenchTabs, BoxesAndButtonsReachThePort) {
  showTab(1);
  for (const char* name : {"Bitcim(0)", "Bitcim(7)", "Bitcim(8)", "Kuld", "Torles"}) click(name);
  EXPECT_EQ(journal, (support::Journal{"w378=81", "w37A=2", "w378=0", "w37A=0"}));
  EXPECT_EQ(find<QLabel>("Cim1")->text() + find<QLabel>("Cim2")->text(), "H378H37A");
  lap.jog.Seb.type("200");
  journal.clear();
  click("Impulzus");
  click("SpindleGomb");
  EXPECT_FALSE(find<QCheckBox>("Bitcim(3)")->isEnabled());
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "Az impulzusgenerátor üteme 5 ms, azaz 200 lépés/másodperc.");
  ASSERT_TRUE(QTest::qWaitFor([this] { return journal.size() >= 4; }));
  click("Impulzus");
  for (std::size_t n = 0; n < journal.size(); n += 2) {
    EXPECT_EQ(journal[n] + journal.at(n + 1), "r37Aw37A=0");
  }
  EXPECT_EQ(lap.Esemeny.Caption.get(), "");
}

TEST_F(BenchTabs, OptionsStepAndLoadReachTheController) {
  showTab(2);
  const auto sent = [this] {
    std::size_t waits = 0, beeps = 0;
    for (const std::string& entry : std::exchange(journal, {})) {
      waits += entry == "z1";
      beeps += entry == "beep";
    }
    return std::to_string(waits / 24) + std::string(beeps, '!');
  };
  click("L(13)");
  EXPECT_EQ(sent(), "6");
  click("L(12)");
  EXPECT_EQ(sent(), "0") << "a + can't be chosen";
  click("Leptet(1)");
  EXPECT_EQ(sent(), "6");
  EXPECT_TRUE(find<QRadioButton>("L(11)")->isChecked());
  EXPECT_TRUE(find<QRadioButton>("L(6)")->isChecked());
  auto* const more = find<QPushButton>("TapFel");
  more->setFocus();
  for (int n = 0; n < 7; ++n) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(sent(), "24!") << "the motor off, six steps, a beep";
  EXPECT_TRUE(more->hasFocus());
  EXPECT_EQ(lap.Esemeny.Caption.get(),
            "100% fölé engedély kell: jelölje be az elsőt, ha a táp bírja!");
  click("TulH");
  for (int n = 0; n < 2; ++n) click("TapFel");
  EXPECT_EQ(find<QLineEdit>("Taptext")->text(), " 133.3%");
  EXPECT_EQ(find<QLineEdit>("Taptext")->palette().color(QPalette::Text), QColor(255, 255, 0));
  const auto ground = [this] {
    auto* const words = find<QLabel>("Figy2");
    return words->grab().toImage().pixelColor(1, 1);
  };
  EXPECT_EQ(ground(), QColor(255, 0, 0));
  EXPECT_TRUE(find<QGroupBox>("Figy")->isEnabled());
  click("TapStop");
  EXPECT_NE(ground(), QColor(255, 0, 0));
  EXPECT_FALSE(find<QCheckBox>("TulH")->isChecked() || find<QGroupBox>("Figy")->isEnabled());
}

TEST_F(BenchTabs, EachMotorsFrameNamesItsLinesFromTopToBottom) {
  showTab(2);
  const std::pair<const char*, const char*> frames[] = {
      {"Frame5", "L1 (CON17)|+   (CON18)|L2 (CON19)|L3 (CON20)|+   (CON21)|L4 (CON22)| Ki|"},
      {"Frame6", "L1 (CON23)|+   (CON24)|L2 (CON25)|L3 (CON26)|+   (CON27)|L4 (CON28)|Ki|"},
      {"Frame7", "L1 (CON29)|+   (CON30)|L2 (CON31)|L3 (CON32)|+   (CON33)|L4 (CON34)|Ki|"}};
  for (const auto& [frame, captions] : frames) {
    std::map<int, QRadioButton*> rows;
    for (auto* const option : find<QGroupBox>(frame)->findChildren<QRadioButton*>()) {
      rows[option->y()] = option;
    }
    std::string seen;
    for (const auto& [y, option] : rows) {
      seen += option->text().toStdString() + "|";
      EXPECT_EQ(option->isEnabled(), option->text().front() != QLatin1Char('+'));
      EXPECT_EQ(option->isChecked(), option->text().trimmed() == QLatin1String("Ki"));
    }
    EXPECT_EQ(seen, captions);
  }
}

TEST(LedBar, FillsFromItsFootAndChangesColourAtItsLimits) {
  controls::LedMeter meter;
  LedBar bar;
  bar.follow(meter);
  bar.resize(20, 246);
  const auto lit = [&bar](int percent) {
    const QColor colour = bar.grab().toImage().pixelColor(10, 242 - percent * 240 / 100);
    return std::string(colour.red() > 128 ? "r" : "") + (colour.green() > 128 ? "g" : "");
  };
  // Each row: the level, then what shines at 2, 48, 52, 73, 77 and 98%.
  for (const auto& [level, shines] :
       {std::pair(0, "|||||"), std::pair(8, "g|||||"), std::pair(50, "g|g||||"),
        std::pair(75, "g|g|rg|rg||"), std::pair(100, "g|g|rg|rg|r|r")}) {
    meter.Level = level;
    std::string seen;
    for (const int percent : {2, 48, 52, 73, 77, 98}) {
      seen += lit(percent) + (percent == 98 ? "" : "|");
    }
    EXPECT_EQ(seen, shines) << level;
  }
}

}  // namespace
}  // namespace monitra::desktop
