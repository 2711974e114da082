#include "support/window.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <gtest/gtest.h>

#include "desktop/jog_button.h"
#include "desktop/spin_arrows.h"
#include "desktop/status_line.h"
#include "desktop/widget_maker.h"
#include "shell/port_texts.h"

namespace monitra::desktop {
namespace {

struct TheWindow : support::Window {
  void showTab(int tab) {
    find<QTabWidget>("SSTab1")->setCurrentIndex(tab);
    QApplication::processEvents();
  }
  void showLongestPortText(const QLabel& line);
};

/// By how many pixels the text of a widget doesn't fit, if it doesn't.
int cutOff(const QWidget* widget) {
  const QFontMetrics font = widget->fontMetrics();
  if (const auto* const box = qobject_cast<const QLineEdit*>(widget)) {
    constexpr int frame = 6;
    return font.horizontalAdvance(box->text()) + frame - widget->width();
  }
  const auto* const label = qobject_cast<const QLabel*>(widget);
  if (label != nullptr && label->wordWrap()) {
    return label->heightForWidth(label->width()) - label->height();
  }
  if (dynamic_cast<const StatusLine*>(widget) != nullptr) {
    return font.horizontalAdvance(label->text()) - widget->width();
  }
  const bool hasText = label != nullptr || widget->inherits("QAbstractButton") ||
                       widget->inherits("QGroupBox") || widget->inherits("QComboBox");
  const QSize least = widget->minimumSizeHint();
  return hasText ? std::max(least.width() - widget->width(), least.height() - widget->height()) : 0;
}

/// Everything that the status line can say of a port, in turn; leaves the widest there.
void TheWindow::showLongestPortText(const QLabel& line) {
  std::string longest;
  for (int kind = 0; kind <= static_cast<int>(platform::PortState::Kind::Failed); ++kind) {
    for (const char* const holder : {"", "Monitra Setup (1234567)"}) {
      const std::string text =
          shell::portText({.kind = static_cast<platform::PortState::Kind>(kind),
                           .address = 0xD010,
                           .node = "/dev/parport0",
                           .holder = holder,
                           .error = 121},
                          "&H3BC");
      const auto width = [&line](const std::string& of) {
        return line.fontMetrics().horizontalAdvance(QString::fromStdString(of));
      };
      if (width(text) > width(longest)) longest = text;
    }
  }
  lap.PortAllapot.Caption = longest;
}

TEST_F(TheWindow, CutsNothingOffAndKeepsItsSizeAlsoWithLargerFonts) {
  const QFont font = QApplication::font();
  std::vector<std::unique_ptr<MainWindow>> windows;
  for (const double factor : {1.0, 1.2}) {
    QFont larger = font;
    larger.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(larger);
    lap.SSTab1.Tab = 0;
    MainWindow& fresh = *windows.emplace_back(std::make_unique<MainWindow>(lap));
    fresh.showCentred();
    QApplication::processEvents();
    const QSize first = fresh.size();
    // The values at their longest.
    for (auto* const value : {&lap.setup.Csucsf[0], &lap.setup.Nhatar[1]}) {
      value->Caption = "30303.0 S/s";
    }
    lap.setup.Xttarto.Caption = "15151.5 Hz (99.6%)";
    lap.setup.Vegallas.Caption = "Végállások állapota: Záró";
    lap.setup.Uthossz.Caption = "19660";
    lap.load.Taptext.Text = " 166.6%";
    showLongestPortText(*fresh.findChild<QLabel*>("PortAllapot"));
    lap.Esemeny.Caption =
        "Kiküldve 1488.8 ms alatt, a leghosszabb szünet két él között 100.0 ms volt. A vonal "
        "egyirányú, nyugta nem jön.";
    for (int tab = 0; tab < 4; ++tab) {
      lap.SSTab1.Tab = tab;
      QApplication::processEvents();
      EXPECT_EQ(fresh.size(), first) << "of one tab as of another";
      for (const QWidget* const widget : fresh.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->objectName().isEmpty()) continue;
        EXPECT_LE(cutOff(widget), 0) << widget->objectName().toStdString() << " at " << factor;
      }
    }
  }
  QApplication::setFont(font);
}

TEST_F(TheWindow, TheTabKeyGoesAlongTheLinesOfEachTab) {
  const auto path = [this](int tab) {
    showTab(tab);
    std::string names;
    QWidget* const start = find<QTabWidget>("SSTab1")->tabBar();
    start->setFocus();
    for (;;) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      const QWidget* const at = QApplication::focusWidget();
      if (at == start || names.size() > 1000) return names;
      names += at->objectName().toStdString() + " ";
    }
  };
  EXPECT_EQ(path(0),
            "FolLe(0) FolLe(3) FolLe(6) FolLe(9) FolLe(1) FolLe(4) FolLe(7) FolLe(10) FolLe(2) "
            "FolLe(5) FolLe(8) FolLe(11) Funkcio Ut Utfolle Spm Tures Turesfolle Xegesz Yegesz "
            "Zegesz Letolt PortTeendo ");
  EXPECT_EQ(path(2),
            "L(6) Leptet(0) L(7) Leptet(1) L(14) Leptet(2) TapFel TapStop TulH Teh200 PortTeendo ");
  journal.clear();
  find<QWidget>("L(6)")->setFocus();
  std::string walked;
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up}) {
    QTest::keyClick(QApplication::focusWidget(), key);
    walked += QApplication::focusWidget()->objectName().toStdString() + " ";
  }
  EXPECT_EQ(walked, "L(0) L(2) L(3) L(2) L(0) ");
  EXPECT_EQ(path(2).substr(0, 4), "L(6)") << "still the selected one";
  EXPECT_EQ(journal, support::Journal{}) << "to walk along them sends nothing";
  lap.phases.L[11].click();
  EXPECT_EQ(path(2).substr(0, 32), "L(6) Leptet(0) L(11) Leptet(1) L");
  EXPECT_EQ(path(3), "InfoT PortTeendo ");
  EXPECT_EQ(path(1),
            "Invert(0) Invert(1) Invert(2) Seb Impulzus LPT Bitcim(0) Bitcim(1) Bitcim(2) "
            "Bitcim(3) Bitcim(4) Bitcim(5) Bitcim(6) Bitcim(7) Bitcim(8) Kuld Torles PortTeendo ");
  lap.jog.Impulzus.click();
  find<QWidget>("Mozg(0)")->setFocus();
  std::string names;
  for (int n = 0; n < 12; ++n) {
    names += QApplication::focusWidget()->objectName().toStdString() + " ";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(names,
            "Mozg(0) Mozg(1) Mozg(2) Mozg(3) Mozg(4) Mozg(5) Invert(0) Invert(1) Invert(2) "
            "SpindleGomb Seb Impulzus ");
}

TEST(WidgetMaker, MarksAMnemonicAndKeepsAnAmpersand) {
  EXPECT_EQ(withMnemonic("Rossz & jó", 'j'), QString::fromUtf8("Rossz && &jó"));
  EXPECT_EQ(withMnemonic("Cím", 0), QString::fromUtf8("Cím"));
}

TEST_F(TheWindow, AMnemonicReachesItsFieldAndMovesNothingOnTheMachine) {
  struct Case {
    int tab;
    Qt::Key key;
    const char* reached;
  };
  for (const auto& [tab, key, reached] :
       {Case{0, Qt::Key_S, "Funkcio"}, Case{0, Qt::Key_L, "Ut"}, Case{0, Qt::Key_E, "Spm"},
        Case{0, Qt::Key_H, "Tures"}, Case{0, Qt::Key_X, "Xegesz"}, Case{1, Qt::Key_S, "Seb"},
        Case{1, Qt::Key_L, "LPT"}, Case{1, Qt::Key_Y, "Invert(1)"}}) {
    showTab(tab);
    journal.clear();
    QTest::keyClick(window.get(), key, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(reached));
    EXPECT_EQ(journal, support::Journal{});
  }
  const auto toggled = [this] { return lap.setup.Xegesz.Checked && lap.jog.Invert[1].Checked; };
  EXPECT_TRUE(QTest::qWaitFor(toggled)) << "a button is pressed for a moment first";
  for (const auto& [key, tab] : {std::pair(Qt::Key_T, 1), std::pair(Qt::Key_P, 2),
                                 std::pair(Qt::Key_I, 3), std::pair(Qt::Key_M, 0)}) {
    QTest::keyClick(window.get(), key, Qt::AltModifier);
    EXPECT_EQ(lap.SSTab1.Tab, tab);
  }
  box.answers = {platform::BoxAnswer::No};
  journal.clear();
  QTest::keyClick(window.get(), Qt::Key_F, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !journal.empty(); }));
  EXPECT_EQ(journal.front().substr(0, 7), "box 52:") << "it asks first";
}

TEST_F(TheWindow, AHeldArrowRepeats) {
  QToolButton* const up = find<SpinArrows>("FolLe(0)")->findChild<QToolButton*>();
  QTest::mousePress(up, Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return lap.setup.FolLe[0].Value >= 94; }));
  QTest::mouseRelease(up, Qt::LeftButton);
  const int value = lap.setup.FolLe[0].Value;
  QTest::qWait(150);
  EXPECT_EQ(lap.setup.FolLe[0].Value, value);
}

TEST_F(TheWindow, AScreenReaderFindsReadsAndPresses) {
  const auto access = [this](const char* name) {
    return QAccessible::queryAccessibleInterface(find<QWidget>(name));
  };
  const auto name = [&access](const char* of) {
    return access(of)->text(QAccessible::Name).toStdString();
  };
  const auto press = [&access](const char* what, const QString& action) {
    access(what)->actionInterface()->doAction(action);
  };
  EXPECT_EQ(name("Xttarto"), "Tartóág X: 631.313 Hz (50%)");
  press("FolLe(6)", QAccessibleActionInterface::increaseAction());
  press("FolLe(1)", QAccessibleActionInterface::decreaseAction());
  EXPECT_EQ(name("Xttarto"), "Tartóág X: 631.313 Hz (47.9%)");
  EXPECT_EQ(access("FolLe(6)")->valueInterface()->currentValue(), 25);
  EXPECT_EQ(access("FolLe(1)")->valueInterface()->currentValue(), 90);
  EXPECT_EQ(access("FolLe(6)")->role(), QAccessible::SpinBox);
  EXPECT_EQ(name("FolLe(6)") + "|" + name("T2(6)"), "T2 X nyilai|T2 X");
  EXPECT_EQ(name("MentesJel"), "Mentés: Mentés óta módosult");
  EXPECT_EQ(access("Picture1(0)")->role(), QAccessible::Graphic);
  press("Letolt", QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !lap.Esemeny.Caption.get().empty(); }));
  EXPECT_EQ(std::count(journal.begin(), journal.end(), "z1"), 480);
  EXPECT_EQ(name("KuldesJel"), "Feltöltés");

  showTab(1);
  lap.jog.Seb.type("5000");
  lap.jog.Impulzus.click();
  EXPECT_EQ(access("Mozg(3)")->role(), QAccessible::Button);
  press("Mozg(3)", QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(lap.jog.Mozg[3].Held);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !lap.jog.Mozg[3].Held; })) << "only for a moment";
  QMessageBox message(window.get());
  message.open();
  press("Mozg(3)", QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(lap.jog.Mozg[3].Held) << "under a box";
  message.close();
  showTab(0);
  lap.jog.Impulzus.Value = true;
  press("Mozg(3)", QAccessibleActionInterface::pressAction());
  EXPECT_FALSE(lap.jog.Mozg[3].Held) << "on a hidden tab";
  lap.load.TapFel.click();
  EXPECT_EQ(access("LEDsav")->valueInterface()->currentValue(), 8);
}

TEST_F(TheWindow, HasItsGivenFontsAndColours) {
  const auto look = [this](const char* name) {
    const auto* const widget = find<QWidget>(name);
    const QFont& font = widget->font();
    return font.family().toStdString() + " " + QString::number(font.pointSizeF()).toStdString() +
           (font.bold() ? " bold" : "") + (font.italic() ? " italic" : "");
  };
  EXPECT_EQ(look("Label21"), "Times New Roman 15.75 italic");
  EXPECT_EQ(look("Label14"), "Arial 8.25 bold");
  EXPECT_EQ(look("Label24"), "Arial 9.75");
  EXPECT_EQ(look("Label29(1)"), "Times New Roman 18");
  EXPECT_EQ(look("InfoT"), "Arial 8.25");
  for (const char* const name : {"Label20", "lepes", "Vegallas", "Label6(2)", "Label2", "Label1",
                                 "Label3(0)", "Label4(0)", "Cim1", "Cim2", "Figy2"}) {
    EXPECT_TRUE(find<QLabel>(name)->font().bold()) << name;
  }
  for (const char* const name : {"Cim", "Label4(1)", "Label16(0)", "Label30", "PCBV"}) {
    EXPECT_FALSE(find<QLabel>(name)->font().bold()) << name;
  }
  const auto colour = [this](const char* name, QPalette::ColorRole role) {
    return find<QWidget>(name)->palette().color(role).name().toStdString();
  };
  EXPECT_EQ(colour("Label21", QPalette::WindowText), "#00c000");
  EXPECT_EQ(colour("TF(0)", QPalette::Base) + colour("Taptext", QPalette::Base), "#000000#000000");
  EXPECT_EQ(colour("Taptext", QPalette::Text), "#00ff00");
}

TEST_F(TheWindow, ColoursFollowTheTheme) {
  const QPalette light = QApplication::palette();
  QPalette dark(QColor(0x30, 0x30, 0x30));
  dark.setColor(QPalette::ToolTipBase, QColor(0x10, 0x20, 0x30));
  const auto words = [this] { return find<QLabel>("Label27")->palette().windowText().color(); };
  const QColor onLight = words();
  QApplication::setPalette(dark);
  QApplication::processEvents();
  EXPECT_NE(words(), onLight);
  EXPECT_EQ(find<QWidget>("InfoT")->palette().base().color(), QColor(0x10, 0x20, 0x30));
  QApplication::setPalette(light);
  QApplication::processEvents();
  EXPECT_EQ(words(), onLight);
}

}  // namespace
}  // namespace monitra::desktop
