#include "apps/comparison_button.h"
#include "compare/curve_view.h"
#include "support/window.h"

namespace monitra::compare {
namespace {

using namespace support;
using revisions::Comparison;

/// The started program with the companion window beside its own.
struct Companion : Window {
  Companion() {
    lap.MentesJel.click();
    EXPECT_TRUE(QTest::qWaitForWindowActive(button.window()));
    companion().findChild<QTabWidget*>()->setCurrentIndex(0);
  }
  ComparisonWindow& companion() { return *button.window(); }
  QTableView& table(const char* name = "A Setup mezői") {
    const auto tables = companion().findChildren<QTableView*>();
    return **std::ranges::find(tables, QString::fromUtf8(name), &QWidget::accessibleName);
  }
  std::string cell(int row, int column, int role = Qt::DisplayRole) {
    return table().model()->index(row, column).data(role).toString().toStdString();
  }
  template <class Button = QPushButton>
  void press(const char* words) {
    for (auto* const one : companion().findChildren<Button*>()) {
      const bool isIt = one->isVisible() && one->text().remove('&') == QString::fromUtf8(words);
      if (isIt) return one->click();
    }
    ADD_FAILURE() << words;
  }
  bool tells(const char* words) {
    const auto labels = companion().findChildren<QLabel*>();
    return std::ranges::any_of(
        labels, [&](auto* label) { return label->text().contains(QString::fromUtf8(words)); });
  }
  std::string shownRows() {
    std::string rows;
    for (int row = 0; row < 22; ++row) rows += table().isRowHidden(row) ? '-' : '#';
    return rows;
  }

  apps::ComparisonButton button{lap};
};

TEST_F(Companion, FollowsTheSetupMarksWhatDiffersAndLeadsBack) {
  auto* const curve = companion().findChildren<CurveView*>().front();
  const QImage before = curve->grab().toImage();
  for (int n = 0; n < 30; ++n) lap.setup.FolLe[3].pressDown();
  lap.setup.FolLe[9].pressUp();
  QApplication::processEvents();
  EXPECT_EQ(cell(3, 0) + cell(3, 1) + cell(3, 2), "214≠ 244–") << "nothing was sent yet";
  EXPECT_EQ(cell(3, 1, Qt::AccessibleTextRole), "244, eltér");
  EXPECT_TRUE(tells("Áram határolás: 142 S/s = 1,77 mm/s = 106 mm/perc"));
  EXPECT_NE(curve->grab().toImage(), before);
  lap.setup.Letolt.click();
  QApplication::processEvents();
  EXPECT_EQ(cell(3, 2), "214");

  press<QCheckBox>("Csak az eltérések");
  EXPECT_EQ(shownRows(), "---#--#--#------------");
  table().setCurrentIndex(table().model()->index(3, 1));
  EXPECT_TRUE(tells("T1 X: most 214; Mentett: 244"));
  press("A mező vissza");
  EXPECT_EQ(lap.setup.FolLe[3].Value, 244);
  EXPECT_EQ(shownRows(), "---#--#--#------------") << "it differs from the sent one now";
  QTest::keyClick(&companion(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(lap.setup.FolLe[3].Value, 214);
  press("A tengely vissza");
  EXPECT_EQ(lap.setup.FolLe[9].Value, 24);
  press("Mind vissza");
  QApplication::processEvents();
  EXPECT_EQ(lap.revisions.marks.savedMark(), "");
}

TEST_F(Companion, PutsFilesBesideAndOpensThemOnlyWhenAsked) {
  const QString path = QString::fromStdString(scratch.write("b.pwm", "50\r\n"));
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path), QUrl::fromLocalFile("/a.txt")});
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(companion().windowHandle(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(companion().windowHandle(), &drop);
  EXPECT_EQ(cell(0, Comparison::firstFile), "≠ 50");
  EXPECT_TRUE(tells("b.pwm: nem olvasható be"));
  EXPECT_EQ(lap.setup.FolLe[0].Value, 91);
  table().setCurrentIndex(table().model()->index(0, 0));
  press("Megnyitás az ablakban");
  EXPECT_EQ(lap.setup.FolLe[0].Value, 91);
  EXPECT_TRUE(tells("Jelölje ki egy fájl oszlopát!"));
  table().setCurrentIndex(table().model()->index(0, Comparison::firstFile));
  press("Megnyitás az ablakban");
  EXPECT_EQ(lap.setup.FolLe[0].Value, 50);
  press("Elvétel");
  EXPECT_EQ(table().model()->columnCount(), 3);
}

TEST_F(Companion, ListsTheUploadsToOpenCompareAndCopy) {
  lap.setup.Letolt.click();
  lap.setup.FolLe[0].pressUp();
  companion().findChild<QTabWidget*>()->setCurrentIndex(1);
  lap.setup.Letolt.click();
  lap.setup.FolLe[0].pressUp();
  QApplication::processEvents();
  QTableView& uploads = table("Feltöltések");
  ASSERT_EQ(uploads.model()->rowCount(), 2);
  EXPECT_EQ(uploads.model()->index(0, 3).data().toString(), "TF X: 91 → 92");
  uploads.selectRow(1);
  press("Másolás szövegként");
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("2026-11-24 07:00:00, &H378"));
  press("Összevetés a mostanival");
  EXPECT_EQ(cell(0, Comparison::firstFile), "≠ 91");
  press("Megnyitás az ablakban");
  EXPECT_EQ(lap.form.Caption.get(), "Vilor CNC Monitra V2.2.0");
  const QPointer<ComparisonWindow> closing = button.window();
  companion().close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(closing.isNull());
  lap.setup.FolLe[0].pressUp();
}

}  // namespace
}  // namespace monitra::compare

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
