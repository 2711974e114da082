#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "desktop/accessibility.h"
#include "desktop/end_watch.h"
#include "desktop/qt_file_dialog.h"
#include "desktop/qt_message_box.h"
#include "desktop/qt_remedy_box.h"
#include "desktop/spin_arrows.h"
#include "desktop/text.h"
#include "desktop/window_style.h"
#include "support/image.h"
#include "support/window.h"

namespace monitra::desktop {
namespace {

using support::Journal;

struct Desktop : support::Window {
  std::string text(const char* label) { return find<QLabel>(label)->text().toStdString(); }
  std::string boxText(const char* field) { return find<QLineEdit>(field)->text().toStdString(); }
  void pressArrow(const char* arrows, Qt::ArrowType type) {
    for (QToolButton* const arrow : find<SpinArrows>(arrows)->findChildren<QToolButton*>()) {
      if (arrow->arrowType() == type) QTest::mouseClick(arrow, Qt::LeftButton);
    }
  }
  void replaceText(const char* field, const QString& pasted) {
    QApplication::clipboard()->setText(pasted);
    find<QLineEdit>(field)->selectAll();
    find<QLineEdit>(field)->paste();
  }
  static void turnWheel(QWidget* widget, int notches) {
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
  }
};

TEST_F(Desktop, ShowsOneWindowOfItsFixedSizeInTheMiddle) {
  class ShownWindows : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Show && watched->isWidgetType() &&
          static_cast<QWidget*>(watched)->isWindow()) {
        ++count;
      }
      return false;
    }
    int count = 0;
  } shown;
  qApp->installEventFilter(&shown);
  MainWindow another(lap);
  another.showCentred();
  qApp->removeEventFilter(&shown);
  EXPECT_EQ(shown.count, 1);
  EXPECT_EQ(another.minimumSize(), another.maximumSize());
  const QPoint centre = another.frameGeometry().center();
  EXPECT_LE((centre - another.screen()->availableGeometry().center()).manhattanLength(), 4);
  EXPECT_EQ(text("Label21"), "Tarso1 CNC Vezérlő Setup & Test");
  EXPECT_EQ(find<QLabel>("Cim")->toolTip().toStdString(),
            "Gerjesztési módja és PWM alap frekvenciája");
  lap.form.Caption = "a[*].pwm";
  EXPECT_EQ(window->windowTitle(), "a[*][*].pwm") << "shown with one";
}

TEST_F(Desktop, ArrowsKeysAndWheelMoveATimingField) {
  auto* const arrows = find<SpinArrows>("FolLe(6)");
  turnWheel(arrows, 5);
  EXPECT_EQ(boxText("T2(6)"), "24") << "the wheel needs the focus";
  pressArrow("FolLe(6)", Qt::UpArrow);
  EXPECT_EQ(boxText("T2(6)") + " " + text("Xttarto"), "25 631.313 Hz (47.9%)");
  EXPECT_TRUE(arrows->hasFocus());
  pressArrow("FolLe(6)", Qt::DownArrow);
  QTest::keyClick(arrows, Qt::Key_Down);
  EXPECT_EQ(boxText("T2(6)"), "23");
  turnWheel(arrows, 2);
  turnWheel(arrows, -1);
  EXPECT_EQ(boxText("T2(6)"), "24");
  find<QLineEdit>("T2(6)")->setFocus();
  turnWheel(arrows, 1);
  QTest::keyClick(find<QLineEdit>("T2(6)"), Qt::Key_Down);
  turnWheel(find<QLineEdit>("T2(6)"), 1);
  EXPECT_EQ(boxText("T2(6)"), "25") << "at the box as at its arrows";
  QTest::keyClick(arrows, Qt::Key_Down);
  QTest::keyClicks(find<QLineEdit>("T2(6)"), "99");
  EXPECT_EQ(boxText("T2(6)"), "24") << "can't be typed into";
}

TEST_F(Desktop, TypedAndPastedTextIsClamped) {
  find<QLineEdit>("Ut")->selectAll();
  QTest::keyClicks(find<QLineEdit>("Ut"), "1500");
  EXPECT_EQ(lap.setup.Utfolle.Value, 1500);
  EXPECT_EQ(text("Uthossz"), "18.75");
  replaceText("Ut", QStringLiteral("70000"));
  pressArrow("Utfolle", Qt::DownArrow);
  QTest::keyClick(find<QLineEdit>("Ut"), Qt::Key_Down);
  EXPECT_EQ(boxText("Ut"), "65533");
  find<QLineEdit>("Ut")->setText("2222");
  find<QLineEdit>("TF(0)")->setText("7");
  EXPECT_EQ(text("Uthossz") + " " + boxText("TF(0)"), "27.77 91") << "as a screen reader edits";
  replaceText("Tures", QStringLiteral("-5"));
  EXPECT_EQ(boxText("Tures"), "0");
}

TEST_F(Desktop, DiagramFollowsTheEditionAndItsHeadsStandAboveTheColumns) {
  QWidget* const diagram = find<QLabel>("Label2")->parentWidget();
  const QImage second = diagram->grab().toImage();
  lap.setup.MBKVilor.click();
  EXPECT_NE(diagram->grab().toImage(), second);
  EXPECT_FALSE(find<QPushButton>("Letolt")->isEnabled());
  lap.setup.MBKTarso.click();
  EXPECT_EQ(diagram->grab().toImage(), second);
  for (const auto& [head, field] :
       {std::pair("Label2", "TF(0)"), std::pair("Label1", "T1(3)"), std::pair("Label3(0)", "T2(6)"),
        std::pair("Label4(0)", "T3(9)")}) {
    QLabel* const label = find<QLabel>(head);
    QLineEdit* const shown = find<QLineEdit>(field);
    const int left = shown->mapTo(window.get(), QPoint(0, 0)).x();
    const int middle = label->mapTo(window.get(), label->rect().center()).x();
    EXPECT_TRUE(left < middle && middle < left + shown->width()) << head;
  }
}

TEST_F(Desktop, ButtonUploadsAndTheBarMovesWhileTheThreadIsBlocked) {
  // The fakes run no event loop, so what is painted here is painted at once.
  class PaintedValues : public QObject {
   public:
    bool eventFilter(QObject* bar, QEvent* event) override {
      if (event->type() == QEvent::Paint)
        values.push_back(static_cast<QProgressBar*>(bar)->value());
      return false;
    }
    std::vector<int> values;
  } painted;
  auto* const bar = find<QProgressBar>("Bar");
  bar->installEventFilter(&painted);
  QTest::mouseClick(find<QPushButton>("Letolt"), Qt::LeftButton);
  bar->removeEventFilter(&painted);
  EXPECT_EQ(painted.values, (std::vector<int>{10, 25, 35, 50, 62, 75, 85, 100, 0}));
  EXPECT_EQ(std::count(journal.begin(), journal.end(), "z1"), 480);
  EXPECT_EQ(journal.back().substr(0, 7), "box 64:");
}

TEST_F(Desktop, ListsBoxesTabsAndMenusReachTheModel) {
  QTest::keyClick(find<QComboBox>("Funkcio"), Qt::Key_End);
  QTest::mouseClick(find<QCheckBox>("Zegesz"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(lap.setup.spinValues().Funkcio, 5);
  EXPECT_TRUE(lap.setup.Zegesz.Checked);

  find<QTabWidget>("SSTab1")->setCurrentIndex(1);
  auto* const list = find<QListWidget>("LPT");
  const QPoint third = list->visualItemRect(list->item(2)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, third);
  EXPECT_EQ(list->selectedItems().size(), 1) << "the selection can't be removed";
  for (const int row : {0, 2}) {
    list->item(row)->setSelected(true);
    EXPECT_EQ(lap.port.LPT.ListIndex, row) << "as a screen reader selects";
    EXPECT_EQ(list->selectedItems(), QList<QListWidgetItem*>{list->item(row)});
  }
  find<QTabWidget>("SSTab1")->setCurrentIndex(2);
  EXPECT_EQ(journal, (Journal{"r3BC", "w3BC=0"}));

  for (int twice = 0; twice < 2; ++twice) find<QAction>("Mpcb32")->trigger();
  EXPECT_TRUE(find<QAction>("Mpcb32")->isChecked());
  EXPECT_FALSE(find<QAction>("Mpcb40")->isChecked());
  EXPECT_EQ(text("PCBV"), "PCB V3.2");
}

TEST_F(Desktop, MenuOpensSavesAndEnds) {
  dialog.path = scratch.path("uj.pwm");
  for (const char* entry : {"MFSetMent", "MFSetNyit", "MFkilepes"}) find<QAction>(entry)->trigger();
  EXPECT_EQ(window->windowTitle().toStdString(), "Vilor CNC Monitra V2.2.0  (uj.pwm)");
  EXPECT_EQ(journal.back(), "end");
}

TEST_F(Desktop, TheEndOfTheSessionEndsWithoutAQuestion) {
  lap.setup.FolLe[0].pressUp();
  const EndWatch watch([this] { lap.endWithoutQuestion(); });
  QEvent quit(QEvent::Quit);
  QApplication::sendEvent(qApp, &quit);
  EXPECT_EQ(journal.front(), "r378");
  EXPECT_EQ(journal.back(), "end");
}

TEST_F(Desktop, OneSetupOrFirmwareFileDroppedAnywhereIsOpenedAsACopy) {
  const QString firmware =
      toQt(scratch.write("fw.hex", support::Block().text() + support::closingRecord));
  const QString setup = toQt(scratch.write("a.pwm", ""));
  const auto drop = [this](QWidget* onto, const QList<QUrl>& urls, Qt::DropActions offered) {
    QMimeData data;
    data.setUrls(urls);
    data.setText(QStringLiteral("file"));
    QWindow* const target = window->windowHandle();
    const QPointF at = onto->mapTo(window.get(), onto->rect().center());
    QDragEnterEvent enter(at.toPoint(), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDragMoveEvent move(at.toPoint(), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    // As the platform does it: what was accepted on entering holds on the way.
    move.setDropAction(enter.dropAction());
    move.accept();
    QApplication::sendEvent(target, &move);
    QDropEvent event(at, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(target, &event);
    EXPECT_TRUE(move.isAccepted() && event.isAccepted());
    EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "whoever drags it must not remove the file";
    return true;
  };
  const auto url = [](const QString& path) { return QUrl::fromLocalFile(path); };
  const std::string unchanged = lap.form.Caption;
  QWidget* const field = find<QLineEdit>("Ut");
  EXPECT_FALSE(drop(field, {}, Qt::CopyAction));
  EXPECT_FALSE(drop(field, {url("/tmp/a.txt")}, Qt::CopyAction));
  EXPECT_FALSE(drop(field, {url(firmware), url(setup)}, Qt::CopyAction));
  EXPECT_FALSE(drop(field, {QUrl("http://pelda.hu/fw.hex")}, Qt::CopyAction));
  EXPECT_FALSE(drop(field, {url(firmware)}, Qt::MoveAction));
  QMessageBox message(window.get());
  EXPECT_TRUE(drop(field, {url(firmware)}, Qt::CopyAction));
  message.open();
  EXPECT_FALSE(drop(field, {url(firmware)}, Qt::CopyAction)) << "under a box";
  QApplication::processEvents();
  message.close();
  EXPECT_EQ(lap.form.Caption.get(), unchanged);

  EXPECT_TRUE(drop(field, {url(firmware)}, Qt::MoveAction | Qt::CopyAction));
  EXPECT_EQ(lap.form.Caption.get(), unchanged) << "the drop ends first, a box might come up";
  QApplication::processEvents();
  EXPECT_EQ(lap.form.Caption.get(), unchanged + "   (fw.hex)");
  EXPECT_EQ(boxText("Ut"), "258");
  EXPECT_TRUE(find<QAction>("MBTallando")->isChecked());
  for (QWidget* const onto : std::initializer_list<QWidget*>{
           find<QTabWidget>("SSTab1"), find<QLabel>("Esemeny"), find<QWidget>("Funkcio")}) {
    lap.form.Caption = "";
    EXPECT_TRUE(drop(onto, {url(setup)}, Qt::CopyAction)) << onto->objectName().toStdString();
    QApplication::processEvents();
    EXPECT_EQ(lap.form.Caption.get(), unchanged + "  (a.pwm)");
  }
  find<QTabWidget>("SSTab1")->setCurrentIndex(3);
  EXPECT_TRUE(drop(find<QPlainTextEdit>("InfoT"), {url(setup)}, Qt::CopyAction));
  QApplication::processEvents();
}

/// Does something to the dialog that comes up next.
template <class Dialog>
void whenShown(std::function<void(Dialog&)> act) {
  QTimer::singleShot(0, [act] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST(QtMessageBox, ShowsTextIconAndTitleAndMapsTheAnswer) {
  using platform::BoxAnswer;
  struct Case {
    int style;
    QMessageBox::Icon icon;
    int button;  ///< that is pressed; -1: the escape key
    BoxAnswer answer;
  };
  QtMessageBox prompt(QStringLiteral("Monitra Setup"));
  for (const auto& c : {Case{52, QMessageBox::Warning, 0, BoxAnswer::Yes},
                        Case{36, QMessageBox::Question, 1, BoxAnswer::No},
                        Case{52, QMessageBox::Warning, -1, BoxAnswer::No},
                        Case{64, QMessageBox::Information, -1, BoxAnswer::Ok},
                        Case{16, QMessageBox::Critical, 0, BoxAnswer::Ok},
                        Case{0, QMessageBox::NoIcon, 0, BoxAnswer::Ok}}) {
    whenShown<QMessageBox>([&c](QMessageBox& box) {
      EXPECT_EQ(box.text().toStdString(), "'<b>.pwm'\nmásodik");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.windowTitle().toStdString(), "Monitra Setup");
      EXPECT_EQ(box.icon(), c.icon);
      const bool asks = platform::box_style::asksYesNo(c.style);
      EXPECT_EQ(box.buttons().size(), asks ? 2 : 1);
      EXPECT_EQ(box.buttons().constFirst()->text().toStdString(), asks ? "&Igen" : "OK");
      EXPECT_EQ(box.defaultButton(), asks ? box.buttons().constFirst() : nullptr);
      if (c.button >= 0) {
        box.buttons().at(c.button)->click();
      } else {
        QTest::keyClick(&box, Qt::Key_Escape);
      }
    });
    EXPECT_EQ(prompt.MsgBox("'<b>.pwm'\r\nmásodik", c.style), c.answer);
  }
}

TEST(QtFileDialog, OffersTheGivenFiltersAndTakesAnyName) {
  const support::Scratch scratch;
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QtFileDialog dialog;
  const auto show = [&](platform::Failure (QtFileDialog::*ask)(), const char* typed) {
    dialog.Filter = "Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.*";
    dialog.FileName = "Modositott.pwm";
    whenShown<QFileDialog>([&](QFileDialog& shown) {
      EXPECT_EQ(shown.nameFilters(),
                (QStringList{"Setup File (*.pwm) (*.pwm)", "Minden File (*.*) (*)"}));
      EXPECT_TRUE(shown.testOption(QFileDialog::HideNameFilterDetails));
      auto* const name = shown.findChild<QLineEdit*>("fileNameEdit");
      EXPECT_EQ(name->text(), "Modositott.pwm");
      shown.setDirectory(toQt(scratch.path()));
      name->setText(QString::fromUtf8(typed));
      QTest::keyClick(name, *typed != '\0' ? Qt::Key_Return : Qt::Key_Escape);
    });
    return (dialog.*ask)();
  };
  EXPECT_EQ(show(&QtFileDialog::ShowOpen, "nincs.pwm"), platform::Failure::None);
  EXPECT_EQ(dialog.FileName, scratch.path("nincs.pwm"));
  EXPECT_EQ(dialog.FileTitle, "nincs.pwm");
  EXPECT_EQ(show(&QtFileDialog::ShowSave, "ékezetes név"), platform::Failure::None);
  EXPECT_EQ(dialog.FileTitle, "ékezetes név.pwm") << "a name without extension gets the filter's";
  EXPECT_EQ(show(&QtFileDialog::ShowOpen, ""), platform::Failure::Cancel);
  EXPECT_EQ(dialog.FileName, "Modositott.pwm");
}

TEST(QtRemedyBox, ShowsTheTextGivesTheCommandAwayAndTellsWhetherToTryAgain) {
  QtRemedyBox box(QStringLiteral("Monitra Setup"));
  const struct {
    const char* command;
    bool canRetry;
    const char* press;
    bool again;
  } cases[] = {{"sudo modprobe ppdev", true, "Ú&jra próbálja", true},
               {"sudo modprobe ppdev", true, "&Bezárás", false},
               {"", false, "&Bezárás", false}};
  for (const auto& given : cases) {
    QApplication::clipboard()->clear();
    QTimer::singleShot(0, qApp, [&given] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->findChild<QLabel*>()->text(), QStringLiteral("Nincs port."));
      auto* const copy = dialog->findChild<QPushButton*>(QStringLiteral("copy"));
      EXPECT_EQ(copy != nullptr, *given.command != '\0');
      if (copy != nullptr) copy->click();
      EXPECT_EQ(QApplication::clipboard()->text().toStdString(), given.command);
      int retries = 0;
      QPushButton* pressed = nullptr;
      for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == QStringLiteral("Ú&jra próbálja")) ++retries;
        if (button->text().toStdString() == given.press) pressed = button;
      }
      EXPECT_EQ(retries, given.canRetry ? 1 : 0);
      ASSERT_NE(pressed, nullptr);
      pressed->click();
    });
    EXPECT_EQ(box.show({"Nincs port.", "Vigyázat!", given.command, given.canRetry}), given.again);
  }
}

}  // namespace
}  // namespace monitra::desktop

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setStyle(new monitra::desktop::WindowStyle);
  monitra::desktop::installAccessibility();
  return RUN_ALL_TESTS();
}
