#include <csignal>

#include "desktop/end_watch.h"
#include "desktop/qt_file_dialog.h"
#include "desktop/qt_message_box.h"
#include "desktop/qt_remedy_box.h"
#include "support/contracts.h"
#include "support/image.h"
#include "support/window.h"
#include "widgets/accessibility.h"
#include "widgets/text.h"
#include "widgets/window_style.h"

namespace monitra::desktop {
namespace {

using namespace support;
using namespace widgets;
using platform::Failure;

struct Desktop : Window {
  /// Whether a widget takes a key, or so many eighths of a degree of the wheel, rather than passing
  /// it on.
  static bool takes(QWidget* widget, const QString& step) {
    const QPointF at = widget->rect().center();
    const QKeyCombination key = QKeySequence(step)[0];
    QKeyEvent press(QEvent::KeyPress, key.key(), key.keyboardModifiers());
    QWheelEvent turn(at, widget->mapToGlobal(at), {}, {0, step.toInt()}, {}, {}, {}, false);
    QEvent& event = step.toInt() != 0 ? static_cast<QEvent&>(turn) : press;
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  bool drop(const QList<QUrl>& urls, Qt::DropActions offered = Qt::CopyAction) {
    QMimeData data;
    data.setUrls(urls);
    data.setText(QStringLiteral("file"));
    const QPoint at = widget("InfoT")->mapTo(window.get(), widget("InfoT")->rect().center());
    QDragEnterEvent enter(at, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(window->windowHandle(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(at, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QApplication::sendEvent(window->windowHandle(), &event);
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "whoever drags it must not remove the file";
    return true;
  }
};

TEST_F(Desktop, ArrowsKeysAndWheelMoveATimingField) {
  QWidget* const arrows = widget("FolLe(6)");
  auto* const field = find<QLineEdit>("T2(6)");
  const auto arrow = [arrows](int n) {
    return qobject_cast<QToolButton*>(
        arrows->childAt(arrows->width() / 2, arrows->height() * (2 * n + 1) / 4));
  };
  EXPECT_LT(arrow(0)->arrowType(), arrow(1)->arrowType()) << "up and down";
  EXPECT_FALSE(takes(arrows, "600") || takes(widget("Funkcio"), "600")) << "without the focus";
  EXPECT_EQ(lap.setup.Funkcio.ListIndex, 0);
  const QImage unfocused = arrows->grab().toImage();
  QTest::mouseClick(arrow(0), Qt::LeftButton);
  EXPECT_EQ(field->text(), "25");
  EXPECT_TRUE(arrows->hasFocus());
  EXPECT_NE(arrows->grab().toImage(), unfocused);
  QTest::mouseClick(arrow(1), Qt::LeftButton);
  for (QWidget* const at : std::initializer_list<QWidget*>{arrows, field}) {
    at->setFocus();
    for (const QStringList& step : lines("arrows")) {
      const bool taken = step[1] == "both" || (step[1] == "field" && at == field);
      EXPECT_EQ(takes(at, step[0]), taken) << qPrintable(step[0]);
      EXPECT_EQ(field->text(), step.back()) << qPrintable(at->objectName() + step[0]);
    }
  }
  // Repetitions are presses by one, two, four and more.
  const int before = lap.setup.FolLe[0].Value;
  for (int n = 0; n <= 30; ++n) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, {}, {}, n > 0);
    QApplication::sendEvent(widget("FolLe(0)"), &press);
  }
  EXPECT_EQ(lap.setup.FolLe[0].Value, before + 1 + 9 + 10 * 2 + 10 * 4 + 8);
  for (const char* const step : {"Home", "End", "PgUp"}) takes(widget("Ut"), step);
  EXPECT_EQ(lap.setup.Ut.Text.get(), "1010") << "a typed box keeps Home and End";
  lap.setup.Ut.type("1000");
  QTest::mousePress(arrow(0), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return lap.setup.FolLe[6].Value >= 27; })) << "it repeats";
  lap.setup.FolLe[6].Enabled = false;
  EXPECT_FALSE(takes(arrows, "Up"));
}

TEST_F(Desktop, KeysAndTheContextMenuOfAFieldUndoAndCopyAnAxis) {
  const auto undo = [this](const char* at) {
    widget(at)->setFocus();
    QTest::keyClick(widget(at), Qt::Key_Z, Qt::ControlModifier);
  };
  const auto choose = [this](const char* at, const char* words) {
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(widget(at), &asked);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << at;
    const auto isUndo = [](QAction* action) { return action->text().contains("isszavon"); };
    ASSERT_EQ(std::ranges::count_if(menu->actions(), isUndo), 1);
    for (QAction* const action : menu->actions()) {
      if (action->text().remove('&') == QString::fromUtf8(words)) action->trigger();
    }
    menu->close();
  };
  timing::SetupPanel& setup = lap.setup;
  widget("Ut")->setFocus();
  find<QLineEdit>("Ut")->selectAll();
  QTest::keyClicks(widget("Ut"), "1500");
  QApplication::processEvents();
  for (int n = 0; n < 5; ++n) setup.FolLe[0].pressUp(), QApplication::processEvents();
  undo("Ut");
  EXPECT_TRUE(setup.FolLe[0].Value == 91 && setup.Utfolle.Value == 1500)
      << "presses in a row are one";
  undo("FolLe(3)");
  EXPECT_EQ(setup.Ut.Text.get(), "1000");
  choose("Ut", "Mégis");
  choose("TF(0)", "Mégis");
  EXPECT_TRUE(setup.FolLe[0].Value == 96 && setup.Utfolle.Value == 1500);
  setup.Xegesz.click();
  choose("Label6(0)", "Másolás a többi tengelyre");
  EXPECT_TRUE(setup.FolLe[2].Value == 96 && setup.Zegesz.Checked);
  choose("FolLe(1)", "Vissza a mentettre");
  EXPECT_TRUE(setup.FolLe[1].Value == 91 && !setup.Yegesz.Checked && setup.Zegesz.Checked);
  undo("FolLe(3)"), undo("FolLe(3)");
  EXPECT_TRUE(setup.FolLe[2].Value == 91 && !setup.Yegesz.Checked && setup.Xegesz.Checked);

  showTab(1);
  QTest::mouseClick(widget("Mozg(0)"), Qt::LeftButton);
  EXPECT_TRUE(same(journal, {}));
  EXPECT_TRUE(lap.Esemeny.Caption.get().starts_with("A léptetéshez előbb"));
}

TEST_F(Desktop, DiagramAndBarFollowAtOnceAndThePortWithoutAUser) {
  QWidget* const diagram = widget("Label2")->parentWidget();
  const QImage second = diagram->grab().toImage();
  const EventCount<QEvent::Paint> redrawn(diagram), moved(widget("Bar"));
  lap.setup.Letolt.click();
  EXPECT_EQ(moved.count, 9) << "at each eighth and when it is empty again, without an event loop";
  lap.setup.MBKVilor.click();
  QApplication::processEvents();
  EXPECT_GE(redrawn.count, 1);
  EXPECT_NE(diagram->grab().toImage(), second);
  ports.now.kind = platform::PortState::Kind::Simulated;
  const auto* const state = find<QLabel>("PortAllapot");
  EXPECT_TRUE(QTest::qWaitFor([state, before = state->text()] { return state->text() != before; }));
}

TEST_F(Desktop, TheWordToEndFromOutsideEndsOnceWithoutAQuestion) {
  int ended = 0;
  std::signal(SIGHUP, SIG_IGN);
  const EndWatch watch([&ended] { ++ended; });
  std::raise(SIGHUP);
  QApplication::processEvents();
  EXPECT_EQ(ended, 0) << "ignored from the start on";
  std::raise(SIGTERM);
  EXPECT_EQ(ended, 0) << "between two events";
  QEvent quit(QEvent::Quit);
  EXPECT_FALSE(QApplication::sendEvent(window.get(), &quit) || ended) << "a word to the program";
  EXPECT_TRUE(QApplication::sendEvent(qApp, &quit)) << "the loop goes on until the end";
  EXPECT_EQ(ended, 1);
  QApplication::processEvents();
  EXPECT_EQ(ended, 1);
  for (const int caught : {SIGHUP, SIGTERM, SIGQUIT, SIGINT}) std::signal(caught, SIG_DFL);
}

TEST_F(Desktop, OneSetupOrFirmwareFileDroppedAnywhereIsOpenedAsACopy) {
  const auto firmware =
      QUrl::fromLocalFile(toQt(scratch.write("fw.hex", Block().text() + closingRecord)));
  const auto setup = QUrl::fromLocalFile(toQt(scratch.write("a[*].pwm", "")));
  const QString unchanged = window->windowTitle();
  showTab(3);
  for (const QList<QUrl>& urls : {QList<QUrl>(),
                                  {QUrl::fromLocalFile("/tmp/a.txt")},
                                  {firmware, setup},
                                  {QUrl("http://pelda.hu/fw.hex")}}) {
    EXPECT_FALSE(drop(urls)) << urls.size();
  }
  EXPECT_FALSE(drop({firmware}, Qt::MoveAction));
  QMessageBox message(window.get());
  EXPECT_TRUE(drop({firmware}));
  message.open();
  EXPECT_FALSE(drop({firmware})) << "under a box";
  QApplication::processEvents();
  message.close();
  EXPECT_TRUE(drop({firmware}, Qt::MoveAction | Qt::CopyAction));
  EXPECT_EQ(window->windowTitle(), unchanged) << "the drop ends first, a box might come up";
  QApplication::processEvents();
  EXPECT_EQ(window->windowTitle(), unchanged + "   (fw.hex)");
  EXPECT_TRUE(drop({setup}));
  QApplication::processEvents();
  EXPECT_EQ(window->windowTitle(), unchanged + "  (a[*][*].pwm)") << "shown with one";
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

/// The title of a box and the captions of its buttons, that of Enter in brackets.
QString outline(const QDialog& box) {
  QString seen = box.windowTitle();
  for (const auto* const button : box.findChildren<QPushButton*>()) {
    seen += QString(button->isDefault() ? " [%1]" : " %1").arg(button->text());
  }
  return seen;
}

/// Presses the button of this caption, without one the escape key.
void press(QDialog& box, const char* caption) {
  if (*caption == '\0') QTest::keyClick(&box, Qt::Key_Escape);
  for (auto* const button : box.findChildren<QPushButton*>()) {
    if (button->text() == caption) button->click();
  }
}

TEST(QtMessageBox, ShowsTextIconAndTitleAndMapsTheAnswer) {
  using platform::BoxAnswer;
  QtMessageBox prompt(QStringLiteral("Monitra"));
  for (const auto& [style, icon, pressed, answer] :
       {std::tuple(52, QMessageBox::Warning, "&Igen", BoxAnswer::Yes),
        {36, QMessageBox::Question, "&Nem", BoxAnswer::No},
        {64, QMessageBox::Information, "", BoxAnswer::Ok},
        {16, QMessageBox::Critical, "OK", BoxAnswer::Ok},
        {0, QMessageBox::NoIcon, "OK", BoxAnswer::Ok}}) {
    SCOPED_TRACE(style);
    bool repainted = false;
    whenShown<QMessageBox>([&](QMessageBox& shown) {
      EXPECT_EQ(shown.text().toStdString(), "'<b>.pwm'\nmásodik");
      EXPECT_EQ(shown.textFormat(), Qt::PlainText);
      EXPECT_EQ(shown.icon(), icon);
      const bool asks = answer != BoxAnswer::Ok;
      EXPECT_EQ(outline(shown), asks ? "Monitra [&Igen] &Nem" : "Monitra [OK]");
      if (asks) QTest::keyClick(&shown, Qt::Key_Escape), shown.close();
      EXPECT_TRUE(shown.isVisible()) << "what dismisses a box leaves a question as it is";
      press(shown, pressed);
      QTimer::singleShot(0, [&] { repainted = true; });
    });
    EXPECT_EQ(prompt.MsgBox("'<b>.pwm'\r\nmásodik", style), answer);
    EXPECT_TRUE(repainted) << "the window gets time behind the box";
  }
}

TEST(QtFileDialog, KeepsTheContractOfAGivenName) {
  Journal journal;
  JournalDialog fake(journal);
  QtFileDialog dialog;
  QTimer closing;
  QObject::connect(&closing, &QTimer::timeout, &QApplication::closeAllWindows);
  closing.start(0);
  givenNameContract(fake);
  givenNameContract(dialog);
}

TEST(QtFileDialog, OffersTheGivenFiltersAndTakesAnyName) {
  const Scratch scratch;
  scratch.write("van.pwm", "nothing is asked about it");
  for (const QString& from : {toQt(scratch.path()), QDir::rootPath()}) {
    QDir::setCurrent(from);
    QString folder = from == "/" ? QDir::homePath() : from;
    QtFileDialog dialog;
    for (const auto& [save, filter, typed, title] :
         {std::tuple(false, "", "" /*the escape key*/, ""),
          {false, "", "nincs.pwm", "nincs.pwm"},
          {true, "", "ékezetes név", "ékezetes név.pwm"},
          {true, "Minden File (*.*) (*)", "név", "név"},
          {true, "Setup File (*.pwm) (*.pwm)", "más", "más.pwm"},
          {true, "", "van", "van.pwm"}}) {
      dialog.Filter = "Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.*|Maradék";
      dialog.FileName = "Modositott.pwm";
      whenShown<QFileDialog>([&](QFileDialog& shown) {
        EXPECT_EQ(shown.nameFilters(),
                  (QStringList{"Setup File (*.pwm) (*.pwm)", "Minden File (*.*) (*)"}));
        EXPECT_TRUE(shown.testOption(QFileDialog::HideNameFilterDetails));
        EXPECT_EQ(shown.acceptMode(), save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        EXPECT_EQ(shown.directory().absolutePath(), folder) << "where the last one was chosen";
        auto* const name = shown.findChild<QLineEdit*>("fileNameEdit");
        EXPECT_EQ(name->text(), "Modositott.pwm");
        if (*typed != '\0') shown.setDirectory(folder = toQt(scratch.path()));
        if (*filter != '\0') Q_EMIT shown.filterSelected(filter);
        name->setText(QString::fromUtf8(typed));
        QTest::keyClick(name, *typed != '\0' ? Qt::Key_Return : Qt::Key_Escape);
      });
      const Failure ended = save ? dialog.ShowSave() : dialog.ShowOpen();
      EXPECT_EQ(ended, *typed != '\0' ? Failure::None : Failure::Cancel);
      EXPECT_EQ(dialog.FileName, *typed != '\0' ? scratch.path(title) : "Modositott.pwm");
    }
  }
}

TEST(QtRemedyBox, ShowsTheTextGivesTheCommandAwayAndTellsWhetherToTryAgain) {
  QtRemedyBox box(QStringLiteral("Monitra"));
  const std::string text = std::string(150, 'x') + " " + std::string(150, 'x');
  for (const auto& [command, seen, pressed, again] :
       {std::tuple("sudo modprobe", "Monitra &Másolás [&Bezárás] Ú&jra próbálja", "Ú&jra próbálja",
                   true),
        {"sudo modprobe", "Monitra &Másolás [&Bezárás] Ú&jra próbálja", "&Bezárás", false},
        {"", "Monitra [&Bezárás]", "&Bezárás", false}}) {
    SCOPED_TRACE(pressed);
    QApplication::clipboard()->clear();
    whenShown<QDialog>([&](QDialog& shown) {
      EXPECT_EQ(shown.minimumSize(), shown.maximumSize());
      const auto labels = shown.findChildren<QLabel*>();
      EXPECT_EQ(labels[0]->text() + labels[1]->text(), toQt(text + "Vigyázat!"));
      EXPECT_GT(labels[0]->height(), labels[1]->height()) << "it goes on in a second line";
      EXPECT_EQ(outline(shown), seen);
      press(shown, "&Másolás");
      if (const auto* const copy = shown.findChild<QPushButton*>("copy")) {
        EXPECT_FALSE(copy->autoDefault());
        EXPECT_EQ(shown.findChild<QLineEdit*>()->selectedText(), command);
      }
      EXPECT_EQ(QApplication::clipboard()->text(), command);
      press(shown, pressed);
    });
    EXPECT_EQ(box.show({text, "Vigyázat!", command, *command != '\0'}), again);
  }
}

}  // namespace
}  // namespace monitra::desktop

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  QApplication::setStyle(new monitra::widgets::WindowStyle);
  monitra::widgets::installAccessibility();
  return RUN_ALL_TESTS();
}
