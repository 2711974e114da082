#include <QApplication>
#include <QKeyEvent>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "apps/comparison_button.h"
#include "apps/signals_button.h"
#include "desktop/main_window.h"
#include "host/pacer.h"
#include "ports/access_recorder.h"
#include "ports/simulated_port.h"
#include "support/program.h"

/// Measures the whole window on the simulated port:
///   measure_window ticks STEPS_PER_SECOND SECONDS  how evenly the pulse generator steps with a jog
///     button held: the nominal rate and the mean one, and of the intervals in milliseconds the
///     quantiles of 1, 50 and 99 % and the longest
///   measure_window openings COUNT  opens and closes the window of the signals so many times while
///     the generator runs at 1000 steps a second: the ticks meanwhile, the longest interval between
///     two and the median time of an opening with its first frame, in milliseconds
///   measure_window comparison PRESSES  the median time in milliseconds and its 99 % quantile from
///     a press on an arrow of FolLe until all nine captions, and in the window "Összevetés" table
///     and curve, have been painted
///   measure_window captions PRESSES  the median time in microseconds from such a press until all
///     nine captions have their text: with the window, with the window until it has painted them
///     too, and without it
namespace {

using namespace monitra;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

double quantile(std::vector<double> values, double q) {
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(q * static_cast<double>(values.size() - 1))];
}

/// The program with its port simulated, so that no real one is touched.
struct Measured {
  support::Program fakes;
  ports::SimulatedPort simulated;
  host::Pacer clock;
  ports::AccessRecorder recorder{simulated, clock};
  const shell::Outside& outside = fakes.outside;
  shell::Lap lap{{recorder, simulated, recorder, outside.box, outside.remedies, outside.Fileablak,
                  outside.files, outside.codePage, outside.settings, outside.archive,
                  outside.program, [] {}, [] {}}};
};

/// When the ticks began: each one begins with a write to the control register.
std::vector<double> tickTimes(const Measured& measured) {
  std::vector<double> times;
  for (const ports::PortEvent& event : measured.recorder.events()) {
    if (event.kind == ports::PortEvent::Kind::Write && event.address == 0x37A) {
      times.push_back(std::chrono::duration<double, std::milli>(event.end).count());
    }
  }
  return times;
}

int measureOpenings(Measured& measured, int count) {
  shell::Lap& lap = measured.lap;
  apps::SignalsButton button(lap, measured.simulated);
  lap.SSTab1.Tab = 1;
  lap.jog.Seb.type("1000");
  constexpr int settled = 300;
  QTest::qWait(settled);
  lap.jog.Impulzus.click();
  std::vector<double> took;
  for (int n = 0; n < count; ++n) {
    const auto start = Clock::now();
    lap.Jelek.click();
    button.window()->repaint();
    took.push_back(Microseconds(Clock::now() - start).count() / 1000);
    if (n % 100 == 0) QTest::qWait(settled);  // it follows for a while
    button.window()->close();
    QTest::qWait(2);
    if (button.window() != nullptr || !lap.jog.Timer1.Enabled) return EXIT_FAILURE;
  }
  const std::vector<double> times = tickTimes(measured);
  double longest = 0;
  for (std::size_t n = 1; n < times.size(); ++n)
    longest = std::max(longest, times[n] - times[n - 1]);
  std::printf("%zu %.1f %.1f\n", times.size(), longest, quantile(took, 0.5));
  return EXIT_SUCCESS;
}

int measureTicks(Measured& measured, const std::string& rate, int seconds) {
  shell::Lap& lap = measured.lap;
  lap.SSTab1.Tab = 1;
  lap.jog.Seb.type(rate);
  // The window gets the focus first, which would stop the generator.
  constexpr int settled = 300;
  QTimer::singleShot(settled, qApp, [&] {
    lap.jog.Impulzus.click();
    lap.jog.Mozg[0].press();
    QTimer::singleShot(seconds * 1000, Qt::PreciseTimer, qApp, &QApplication::quit);
  });
  QApplication::exec();

  const std::vector<double> times = tickTimes(measured);
  std::vector<double> gaps;
  if (times.size() < 3) return EXIT_FAILURE;
  for (std::size_t n = 1; n < times.size(); ++n) gaps.push_back(times[n] - times[n - 1]);
  std::printf("%.4f %.4f %.4f %.4f %.4f %.4f\n", 1000.0 / lap.jog.Timer1.Interval,
              static_cast<double>(gaps.size()) * 1000 / (times.back() - times.front()),
              quantile(gaps, 0.01), quantile(gaps, 0.5), quantile(gaps, 0.99), quantile(gaps, 1));
  return EXIT_SUCCESS;
}

int measureComparison(Measured& measured, const QWidget& window, int presses) {
  apps::ComparisonButton button(measured.lap);
  measured.lap.MentesJel.click();
  constexpr int settled = 500;
  QTest::qWait(settled);
  QWidget* const arrows = window.findChild<QWidget*>("FolLe(6)");
  const auto tables = button.window()->findChildren<QTableView*>();
  const auto* const table =
      *std::ranges::find(tables, QStringLiteral("A Setup mezői"), &QWidget::accessibleName);
  std::vector<double> times;
  for (int n = 0; n < presses; ++n) {
    const bool up = n / 100 % 2 == 0;
    QApplication::processEvents();
    QKeyEvent press(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
    const auto start = Clock::now();
    QCoreApplication::sendEvent(arrows, &press);
    // The table follows by a timer, and what it has changed is painted behind that.
    const int value = measured.lap.setup.FolLe[6].Value;
    const auto shown = [&] { return table->model()->index(6, 0).data().toInt() == value; };
    while (!shown()) QApplication::processEvents();
    QApplication::processEvents();
    times.push_back(Microseconds(Clock::now() - start).count() / 1000);
  }
  std::printf("%.3f %.3f\n", quantile(times, 0.5), quantile(times, 0.99));
  return EXIT_SUCCESS;
}

int measureCaptions(const QWidget& window, int presses) {
  Measured bare;  // without a window
  bare.lap.Form_Load();
  QWidget* const arrows = window.findChild<QWidget*>("FolLe(6)");
  std::vector<const QWidget*> captions;
  for (const char* name : {"Xttarto", "Yttarto", "Zttarto", "Csucsf(0)", "Csucsf(1)", "Csucsf(2)",
                           "Nhatar(0)", "Nhatar(1)", "Nhatar(2)"}) {
    captions.push_back(window.findChild<QWidget*>(name));
    if (captions.back() == nullptr) return EXIT_FAILURE;
  }
  std::array<std::vector<double>, 3> times;
  const auto text = [](const QWidget* caption) { return caption->property("text").toString(); };
  for (int n = 0; n < presses; ++n) {
    const bool up = n / 100 % 2 == 0;  // as many as down, and away from the limits
    QApplication::processEvents();
    const QString before = text(captions[0]);
    QKeyEvent press(QEvent::KeyPress, up ? Qt::Key_Up : Qt::Key_Down, Qt::NoModifier);
    auto start = Clock::now();
    QCoreApplication::sendEvent(arrows, &press);
    times[0].push_back(Microseconds(Clock::now() - start).count());
    if (text(captions[0]) == before) return EXIT_FAILURE;
    QApplication::processEvents();
    times[1].push_back(Microseconds(Clock::now() - start).count());
    start = Clock::now();
    up ? bare.lap.setup.FolLe[6].pressUp() : bare.lap.setup.FolLe[6].pressDown();
    times[2].push_back(Microseconds(Clock::now() - start).count());
  }
  for (const QWidget* caption : captions) {
    if (text(caption).isEmpty()) return EXIT_FAILURE;
  }
  for (const auto& found : times) std::printf("%.2f ", quantile(found, 0.5));
  std::printf("\n");
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc < 3) return EXIT_FAILURE;
  Measured measured;
  measured.lap.Form_Load();
  desktop::MainWindow window(measured.lap);
  window.showCentred();
  if (std::strcmp(argv[1], "ticks") == 0) {
    return measureTicks(measured, argv[2], argc > 3 ? std::atoi(argv[3]) : 10);
  }
  if (std::strcmp(argv[1], "openings") == 0) return measureOpenings(measured, std::atoi(argv[2]));
  if (std::strcmp(argv[1], "comparison") == 0) {
    return measureComparison(measured, window, std::atoi(argv[2]));
  }
  return measureCaptions(window, std::atoi(argv[2]));
}
