#include <csignal>

#include "desktop/accessibility.h"
#include "desktop/end_watch.h"
#include "desktop/qt_file_dialog.h"
#include "desktop/qt_message_box.h"
#include "desktop/qt_remedy_box.h"
#include "desktop/spin_arrows.h"
#include "desktop/text.h"
#include "desktop/window_style.h"
#include "support/contracts.h"
#include "support/image.h"
#include "support/window.h"

namespace monitra::desktop {
namespace {

using namespace support;
using platform::Failure;

struct Desktop : Window {
  std::string text(const char* label) { return find<QLabel>(label)->text().toStdString(); }
  std::string boxText(const char* field) { return find<QLineEdit>(field)->text().toStdString(); }
  /// Whether a widget takes an event rather than passing it on.
  static bool takes(QWidget* widget, QEvent&& event) {
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  static bool takes(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {}) {
    return takes(widget, QKeyEvent(QEvent::KeyPress, key, modifiers));
  }
  static bool turnWheel(QWidget* widget, int eighths) {
    const QPointF at = widget->rect().center();
    return takes(widget,
                 QWheelEvent(at, widget->mapToGlobal(at), {}, {0, eighths}, {}, {}, {}, false));
  }
  bool drop(QWidget* onto, const QList<QUrl>& urls, Qt::DropActions offered = Qt::CopyAction);
};

TEST_F(Desktop, ShowsOneWindowOfItsFixedSizeInTheMiddle) {
  lap.SSTab1.Tab = 2;
  MainWindow another(lap);
  another.showCentred();
  EXPECT_EQ(another.findChild<QTabWidget*>("SSTab1")->currentIndex(), 2);
  EXPECT_EQ(another.minimumSize(), another.maximumSize());
  const QPoint centre = another.frameGeometry().center();
  EXPECT_LE((centre - another.screen()->availableGeometry().center()).manhattanLength(), 4);
  lap.form.Caption = "a[*].pwm";
  EXPECT_EQ(window->windowTitle(), "a[*][*].pwm") << "shown with one";
  lap.Esemeny.show(controls::Status::Plain, "<b>hosszú");
  takes(widget("Esemeny"), QHelpEvent(QEvent::ToolTip, {}, {}));
  EXPECT_EQ(widget("Esemeny")->toolTip(), Qt::convertFromPlainText("<b>hosszú"));
}

TEST_F(Desktop, ArrowsKeysAndWheelMoveATimingField) {
  QWidget *const arrows = widget("FolLe(6)"), *const field = widget("T2(6)");
  const auto arrow = [arrows](int n) {
    const QPoint at(arrows->width() / 2, arrows->height() * (2 * n + 1) / 4);
    auto* const found = qobject_cast<QToolButton*>(arrows->childAt(at));
    EXPECT_EQ(found->arrowType(), n == 0 ? Qt::UpArrow : Qt::DownArrow);
    return found;
  };
  EXPECT_FALSE(turnWheel(arrows, 600) || turnWheel(widget("Funkcio"), 600)) << "without the focus";
  EXPECT_EQ(boxText("T2(6)") + std::to_string(lap.setup.Funkcio.ListIndex), "240");
  const QImage unfocused = arrows->grab().toImage();
  QTest::mouseClick(arrow(0), Qt::LeftButton);
  EXPECT_EQ(boxText("T2(6)"), "25");
  EXPECT_TRUE(arrows->hasFocus());
  EXPECT_NE(arrows->grab().toImage(), unfocused);
  for (int n = 0; n < 2; ++n) QTest::mouseClick(arrow(1), Qt::LeftButton);
  for (QWidget* const at : {arrows, field}) {
    SCOPED_TRACE(at->objectName().toStdString());
    EXPECT_EQ(boxText("T2(6)"), "23");
    at->setFocus();
    EXPECT_TRUE(takes(at, Qt::Key_Up) && takes(at, Qt::Key_Up) && takes(at, Qt::Key_Down));
    takes(at, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(boxText("T2(6)"), "24");
    EXPECT_TRUE(turnWheel(at, 60) && turnWheel(at, 60));
    EXPECT_EQ(boxText("T2(6)"), "25") << "a notch in two parts";
    EXPECT_TRUE(turnWheel(at, 240) && turnWheel(at, -360) && turnWheel(at, -120));
  }
  EXPECT_FALSE(takes(arrows, Qt::Key_Up, Qt::ControlModifier) || takes(arrows, Qt::Key_Return));
  QTest::mousePress(arrow(0), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([this] { return lap.setup.FolLe[6].Value >= 27; })) << "it repeats";
  lap.setup.FolLe[6].Enabled = false;
  EXPECT_FALSE(takes(arrows, Qt::Key_Up));
}

TEST_F(Desktop, ThePortIsLookedAfterAlsoWhileNobodyUsesIt) {
  ports.now.kind = platform::PortState::Kind::Simulated;
  const std::string before = text("PortAllapot");
  EXPECT_TRUE(QTest::qWaitFor([&] { return text("PortAllapot") != before; }));
}

TEST_F(Desktop, DiagramAndBarFollowAtOnce) {
  QWidget* const diagram = widget("Label2")->parentWidget();
  const QImage second = diagram->grab().toImage();
  const EventCount<QEvent::Paint> redrawn(diagram), moved(widget("Bar"));
  lap.setup.Letolt.click();
  EXPECT_EQ(moved.count, 9) << "at each eighth and when it is empty again, without an event loop";
  lap.setup.MBKVilor.click();
  QApplication::processEvents();
  EXPECT_GE(redrawn.count, 1);
  EXPECT_NE(diagram->grab().toImage(), second);
}

TEST_F(Desktop, TheRowOfTabsStopsTheGeneratorHoweverTheTabIsChanged) {
  auto* const tabs = find<QTabWidget>("SSTab1");
  QTabBar* const row = tabs->tabBar();
  const auto click = [row](int tab) {
    QTest::mouseClick(row, Qt::LeftButton, {}, row->tabRect(tab).center());
  };
  const std::function<void()> ways[] = {
      [&] { click(2); }, [&] { click(1); },
      [&] { QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier); }, [&] { row->setFocus(); },
      [&] { tabs->setCurrentIndex(2); }};
  for (const auto& change : ways) {
    SCOPED_TRACE(&change - ways);
    showTab(1);
    lap.jog.Seb.type("1");
    widget("Impulzus")->setFocus();
    lap.jog.Impulzus.click();
    change();
    EXPECT_FALSE(lap.jog.Impulzus.Value || lap.jog.Timer1.Enabled);
    EXPECT_TRUE(row->hasFocus());
    const Journal opened{"r378", "w378=0"};
    EXPECT_TRUE(same(journal, tabs->currentIndex() == 2 ? opened : Journal{}));
  }
}

TEST_F(Desktop, TheWordToEndFromOutsideEndsOnceWithoutAQuestion) {
  for (const auto& [signal, before, ends] : {std::tuple(SIGHUP, SIG_IGN, 0),
                                             {SIGHUP, SIG_DFL, 1},
                                             {SIGTERM, SIG_DFL, 1},
                                             {SIGQUIT, SIG_DFL, 1},
                                             {SIGINT, SIG_DFL, 1}}) {
    SCOPED_TRACE(signal);
    std::signal(signal, before);
    int ended = 0;
    const EndWatch watch([&ended] { ++ended; });
    std::raise(signal);
    EXPECT_EQ(ended, 0) << "between two events";
    QApplication::processEvents();
    QEvent quit(QEvent::Quit);
    EXPECT_FALSE(QApplication::sendEvent(window.get(), &quit)) << "only a word to the program";
    EXPECT_EQ(ended, ends);
    EXPECT_TRUE(QApplication::sendEvent(qApp, &quit)) << "the loop goes on until the end";
    EXPECT_EQ(ended, 1);
    for (const int caught : {SIGHUP, SIGTERM, SIGQUIT, SIGINT}) std::signal(caught, SIG_DFL);
  }
}

bool Desktop::drop(QWidget* onto, const QList<QUrl>& urls, Qt::DropActions offered) {
  QMimeData data;
  data.setUrls(urls);
  data.setText(QStringLiteral("file"));
  const QPoint at = onto->mapTo(window.get(), onto->rect().center());
  QDragEnterEvent enter(at, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
  QApplication::sendEvent(window->windowHandle(), &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent event(at, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
  QApplication::sendEvent(window->windowHandle(), &event);
  EXPECT_TRUE(event.isAccepted());
  EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "whoever drags it must not remove the file";
  return true;
}

TEST_F(Desktop, OneSetupOrFirmwareFileDroppedAnywhereIsOpenedAsACopy) {
  const auto firmware =
      QUrl::fromLocalFile(toQt(scratch.write("fw.hex", Block().text() + closingRecord)));
  const auto setup = QUrl::fromLocalFile(toQt(scratch.write("a.pwm", "")));
  const std::string unchanged = lap.form.Caption;
  QWidget* const field = widget("Ut");
  for (const QList<QUrl>& urls : {QList<QUrl>(),
                                  {QUrl::fromLocalFile("/tmp/a.txt")},
                                  {firmware, setup},
                                  {QUrl("http://pelda.hu/fw.hex")}}) {
    EXPECT_FALSE(drop(field, urls)) << urls.size();
  }
  EXPECT_FALSE(drop(field, {firmware}, Qt::MoveAction));
  QMessageBox message(window.get());
  EXPECT_TRUE(drop(field, {firmware}));
  message.open();
  EXPECT_FALSE(drop(field, {firmware})) << "under a box";
  QApplication::processEvents();
  message.close();
  EXPECT_TRUE(drop(field, {firmware}, Qt::MoveAction | Qt::CopyAction));
  EXPECT_EQ(lap.form.Caption.get(), unchanged) << "the drop ends first, a box might come up";
  QApplication::processEvents();
  EXPECT_EQ(lap.form.Caption.get(), unchanged + "   (fw.hex)");
  for (const auto& [onto, tab] :
       {std::pair("SSTab1", 0), {"Esemeny", 0}, {"Funkcio", 0}, {"InfoT", 3}}) {
    showTab(tab);
    lap.form.Caption = "";
    EXPECT_TRUE(drop(widget(onto), {setup})) << onto;
    QApplication::processEvents();
    EXPECT_EQ(lap.form.Caption.get(), unchanged + "  (a.pwm)") << onto;
  }
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
  QtMessageBox prompt(QStringLiteral("Monitra Setup"));
  // Each row: the style, its icon, the button that is pressed (-1: the escape key), the answer.
  // What dismisses a box leaves a question as it is.
  for (const auto& [style, icon, pressed, answer] :
       {std::tuple(52, QMessageBox::Warning, 0, BoxAnswer::Yes),
        {36, QMessageBox::Question, 1, BoxAnswer::No},
        {64, QMessageBox::Information, -1, BoxAnswer::Ok},
        {16, QMessageBox::Critical, 0, BoxAnswer::Ok},
        {0, QMessageBox::NoIcon, 0, BoxAnswer::Ok}}) {
    SCOPED_TRACE(style);
    bool repainted = false;
    const bool asks = answer != BoxAnswer::Ok;
    whenShown<QMessageBox>([&](QMessageBox& shown) {
      EXPECT_EQ(shown.text().toStdString(), "'<b>.pwm'\nmásodik");
      EXPECT_EQ(shown.textFormat(), Qt::PlainText);
      EXPECT_EQ(shown.windowTitle().toStdString(), "Monitra Setup");
      EXPECT_EQ(shown.icon(), icon);
      const auto buttons = shown.buttons();
      EXPECT_EQ(buttons.size(), asks ? 2 : 1);
      EXPECT_EQ(buttons[0]->text().toStdString(), asks ? "&Igen" : "OK");
      EXPECT_EQ(shown.defaultButton(), asks ? buttons[0] : nullptr);
      if (asks) QTest::keyClick(&shown, Qt::Key_Escape), shown.close();
      EXPECT_TRUE(shown.isVisible());
      pressed >= 0 ? buttons[pressed]->click() : QTest::keyClick(&shown, Qt::Key_Escape);
      QTimer::singleShot(0, [&] { repainted = true; });
    });
    EXPECT_EQ(prompt.MsgBox("'<b>.pwm'\r\nmásodik", style), answer);
    EXPECT_TRUE(repainted) << "the window gets time behind the box";
  }
}

struct FileDialogs : testing::Test {
  FileDialogs() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  Failure show(bool save, const char* typed, const QString& folder, const char* filter = "");

  const Scratch scratch;
  std::optional<QtFileDialog> dialog;
};

/// Shows it, which is to come up in this folder; chooses a filter, types a name into it and presses
/// Enter, without a name Escape.
Failure FileDialogs::show(bool save, const char* typed, const QString& folder, const char* filter) {
  dialog->Filter = "Setup File (*.pwm)|*.pwm|Minden File (*.*)|*.*|Maradék";
  dialog->FileName = "Modositott.pwm";
  whenShown<QFileDialog>([&](QFileDialog& shown) {
    EXPECT_EQ(shown.nameFilters(),
              (QStringList{"Setup File (*.pwm) (*.pwm)", "Minden File (*.*) (*)"}));
    EXPECT_TRUE(shown.testOption(QFileDialog::HideNameFilterDetails));
    EXPECT_EQ(shown.acceptMode(), save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    EXPECT_EQ(shown.directory().absolutePath(), folder);
    auto* const name = shown.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ(name->text(), "Modositott.pwm");
    if (*typed == '/') shown.setDirectory(QFileInfo(typed).path());
    if (*filter != '\0') emit shown.filterSelected(filter);
    name->setText(QString::fromUtf8(typed));
    QTest::keyClick(name, *typed != '\0' ? Qt::Key_Return : Qt::Key_Escape);
  });
  return save ? dialog->ShowSave() : dialog->ShowOpen();
}

TEST_F(FileDialogs, KeepTheContractOfAGivenName) {
  Journal journal;
  JournalDialog fake(journal);
  dialog.emplace();
  QTimer closing;
  const auto close = [] {
    if (auto* const shown = QApplication::activeModalWidget()) shown->close();
  };
  QObject::connect(&closing, &QTimer::timeout, &closing, close);
  closing.start(0);
  givenNameContract(fake);
  givenNameContract(*dialog);
}

TEST_F(FileDialogs, OfferTheGivenFiltersAndTakeAnyName) {
  const QString before = QDir::currentPath();
  QDir::setCurrent(QDir::rootPath());
  dialog.emplace();
  EXPECT_EQ(show(false, "", QDir::homePath()), Failure::Cancel);
  EXPECT_EQ(dialog->FileName, "Modositott.pwm");
  QDir::setCurrent(before);
  dialog.emplace();
  const std::string chosen = scratch.path("nincs.pwm");
  EXPECT_EQ(show(false, chosen.c_str(), before), Failure::None);
  EXPECT_EQ(dialog->FileName + " " + dialog->FileTitle, chosen + " nincs.pwm");
  for (const auto& [typed, filter, title] : {std::array{"ékezetes név", "", "ékezetes név.pwm"},
                                             {"név", "Minden File (*.*) (*)", "név"},
                                             {"más", "Setup File (*.pwm) (*.pwm)", "más.pwm"},
                                             {"van", "", "van.pwm"}}) {
    scratch.write("van.pwm", "nothing is asked about it");
    EXPECT_EQ(show(true, typed, toQt(scratch.path()), filter), Failure::None);
    EXPECT_EQ(dialog->FileName, scratch.path(title)) << "where the last one was chosen";
  }
}

TEST(QtRemedyBox, ShowsTheTextGivesTheCommandAwayAndTellsWhetherToTryAgain) {
  QtRemedyBox box(QStringLiteral("Monitra Setup"));
  const std::string text = std::string(150, 'x') + " " + std::string(150, 'x');
  for (const auto& [command, captions, pressed, again] :
       {std::tuple("sudo modprobe", "&Másolás|&Bezárás|Ú&jra próbálja", 2, true),
        {"sudo modprobe", "&Másolás|&Bezárás|Ú&jra próbálja", 1, false},
        {"", "&Bezárás", 0, false}}) {
    SCOPED_TRACE(pressed);
    QApplication::clipboard()->clear();
    whenShown<QDialog>([&](QDialog& shown) {
      EXPECT_EQ(shown.windowTitle(), "Monitra Setup");
      EXPECT_EQ(shown.minimumSize(), shown.maximumSize());
      const auto labels = shown.findChildren<QLabel*>();
      EXPECT_EQ(labels[0]->text().toStdString() + labels[1]->text().toStdString(),
                text + "Vigyázat!");
      EXPECT_GT(labels[0]->height(), labels[1]->height()) << "it goes on in a second line";
      QStringList seen;
      const auto buttons = shown.findChildren<QPushButton*>();
      for (auto* const button : buttons) {
        seen << button->text();
        EXPECT_EQ(button->isDefault(), button->text() == "&Bezárás") << "Enter closes";
      }
      EXPECT_EQ(seen.join('|'), captions);
      if (buttons.size() > 1) {
        EXPECT_FALSE(buttons[0]->autoDefault());
        buttons[0]->click();
        EXPECT_EQ(shown.findChild<QLineEdit*>()->selectedText(), command);
      }
      EXPECT_EQ(QApplication::clipboard()->text(), command);
      buttons[pressed]->click();
    });
    EXPECT_EQ(box.show({text, "Vigyázat!", command, *command != '\0'}), again);
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
