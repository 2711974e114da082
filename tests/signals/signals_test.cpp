#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <chrono>
#include <gtest/gtest.h>

#include "link/command_frames.h"
#include "signals/signal_view.h"
#include "signals/signals_window.h"
#include "support/scratch.h"
#include "wire/vcd_writer.h"

namespace monitra::signals {
namespace {

using namespace std::chrono_literals;
using wire::Time;

/// A recording that grows by frames.
struct Recorded : testing::Test {
  void set(int levels) { trace.take(now += 1ms, static_cast<wire::Levels>(levels), 0xFF); }
  void frame(int value) {
    now += 300ms;
    for (const int byte : {int{link::MotorX}, 0, value}) {
      for (int n = 0; n < 8; ++n) {
        const int data = (byte >> n & 1) << 5;
        for (const int levels : {data, data | 0x80, data}) set(levels);
      }
    }
    trace.pass(now);
  }
  void step(int steps) {
    for (int n = 0; n < steps; ++n) set(0x10), set(0);
  }

  wire::Trace trace{wire::boardLayout(link::Pcb::V4x), 8};
  Time now = 1h;
};

TEST_F(Recorded, TheViewKeepsWhatIsUnderThePointerAndFollowsUntilTheUserLooksBack) {
  step(1000);
  SignalView view;
  view.resize(800, 500);
  view.setTrace(&trace);
  view.QWidget::show();
  const auto showsEnd = [&] { return view.scale().from() <= now && now <= view.scale().to(); };
  for (int n = 0; n < 3; ++n) {
    step(2000), view.refresh();
    EXPECT_TRUE(view.follows() && showsEnd());
    QTest::keyClick(&view, Qt::Key_Plus);
  }
  QTest::keyClick(&view, Qt::Key_Left);
  EXPECT_FALSE(view.follows());
  const Time before = view.scale().from();
  step(4000), view.refresh();
  EXPECT_EQ(view.scale().from(), before);
  TimeScale scale = view.scale();
  for (const double x : {0.0, 300.0, 799.0}) {
    const Time under = scale.at(x);
    scale.zoom(1.7, x, trace.start(), trace.end());
    EXPECT_LE(std::abs((scale.at(x) - under).count()), scale.span().count() / 700) << x;
  }
  QTest::keyClick(&view, Qt::Key_L);
  EXPECT_TRUE(view.follows() && showsEnd());
  QTest::keyClick(&view, Qt::Key_Home);
  EXPECT_LE(view.scale().from(), trace.start());
  QTest::keyClick(&view, Qt::Key_F);
  EXPECT_TRUE(showsEnd() && view.scale().from() <= trace.start());
  for (const auto key : {Qt::Key_A, Qt::Key_End, Qt::Key_B}) QTest::keyClick(&view, key);
  EXPECT_EQ(view.cursor(0), trace.start() + (trace.end() - trace.start()) / 2);
  // What it has shown goes, and it paints what is left.
  step(100'000);
  ASSERT_GT(trace.start(), before);
  for (const auto key : {Qt::Key_Home, Qt::Key_F, Qt::Key_Escape}) {
    QTest::keyClick(&view, key);
    EXPECT_FALSE(view.grab().isNull());
  }
  EXPECT_FALSE(view.cursor(0).has_value());
}

TEST_F(Recorded, TheTableFollowsWhatIsRecordedAndForgottenAndLeadsToThePlace) {
  SignalsWindow window(
      {[this]() -> const wire::Trace& { return trace; }, [] {}, [] { return QString(); }});
  window.show();
  auto* const table = window.findChildren<QTableView*>().front();
  auto* const view = window.findChildren<SignalView*>().front();
  const auto waitForRows = [&](int rows) {
    return QTest::qWaitFor([&] { return table->model()->rowCount() == rows; });
  };
  frame(1), frame(2);
  ASSERT_TRUE(waitForRows(2));
  table->selectRow(1);
  const auto labels = window.findChildren<QLabel*>();
  EXPECT_TRUE(std::ranges::any_of(labels, [&](auto* label) {
    return !view->pointedText().isEmpty() && label->text() == view->pointedText();
  })) << "told under the picture";
  EXPECT_TRUE(!view->follows() && view->scale().from() > trace.decoder().messages()[0].end);
  EXPECT_EQ(table->model()->index(1, MessageModel::Meaning).data().toString().toStdString(),
            "X motor: L2 be");
  const auto press = [&](const char* text) {
    for (auto* const button : window.findChildren<QPushButton*>()) {
      if (button->text() == QString::fromUtf8(text)) button->click();
    }
  };
  const auto told = [&] {
    return std::ranges::any_of(labels, [](auto* label) {
      return label->text() == QStringLiteral("Arra nincs több üzenet.");
    });
  };
  press("Elő&ző üzenet");
  EXPECT_FALSE(told());
  press("Elő&ző üzenet");
  QTest::qWait(250);
  EXPECT_TRUE(told()) << "and it stays while the window goes on";
  step(100'000), frame(4);
  EXPECT_TRUE(waitForRows(1)) << "the first two are forgotten";

  const support::Scratch scratch;
  QFile file(QString::fromStdString(scratch.path("a.vcd")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  wire::writeVcd(trace, [&](std::string_view piece) {
    return file.write(piece.data(), qint64(piece.size())) >= 0;
  });
  file.close();
  window.showRecording(readRecording(&window, file.fileName()));
  window.compareWith(readRecording(&window, file.fileName()));
  EXPECT_EQ(window.findChildren<SignalView*>().size(), 2);
  press("É&lő");
  press("Össze&vetés…");
  frame(8);
  EXPECT_TRUE(waitForRows(2)) << "live again";
}

TEST_F(Recorded, TheWindowComesAndGoesWhileTheRecordingGrows) {
  for (int n = 0; n < 100; ++n) {
    auto* const window = new SignalsWindow(
        {[this]() -> const wire::Trace& { return trace; }, [] {}, [] { return QString(); }});
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    frame(1);
    if (n % 10 == 0) QTest::qWait(120);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

}  // namespace
}  // namespace monitra::signals

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
