#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "desktop/main_window.h"
#include "host/pacer.h"
#include "ports/recorder.h"
#include "ports/simulated_port.h"
#include "support/program.h"

/// Prints how evenly the pulse generator steps in the whole window on the simulated port, with a
/// jog button held: measure_tick_rate [STEPS_PER_SECOND [SECONDS]]
int main(int argc, char** argv) {
  using namespace monitra;
  const QApplication application(argc, argv);
  const std::string rate = argc > 1 ? argv[1] : "1000";
  const int seconds = argc > 2 ? std::atoi(argv[2]) : 10;

  support::Program fakes;
  ports::SimulatedPort simulated;
  host::Pacer clock;
  ports::Recorder recorder(simulated, clock);
  const shell::Outside& outside = fakes.outside;
  shell::Lap lap({recorder, simulated, recorder, outside.box, outside.remedies, outside.Fileablak,
                  outside.files, outside.codePage, outside.settings, outside.program, [] {},
                  [] {}});
  lap.Form_Load();
  desktop::MainWindow window(lap);
  window.showCentred();
  lap.SSTab1.Tab = 1;
  lap.jog.Seb.type(rate);
  // The window gets the focus first, which would stop the generator.
  constexpr int settled = 300;
  QTimer::singleShot(settled, &application, [&] {
    lap.jog.Impulzus.click();
    lap.jog.Mozg[0].press();
    QTimer::singleShot(seconds * 1000, Qt::PreciseTimer, &application, &QApplication::quit);
  });
  QApplication::exec();

  // The first write to the control register is a tick's beginning.
  std::vector<double> times;
  for (const ports::PortEvent& event : recorder.events()) {
    if (event.kind == ports::PortEvent::Kind::Write && event.address == 0x37A) {
      times.push_back(std::chrono::duration<double, std::milli>(event.end).count());
    }
  }
  if (times.size() < 3) return EXIT_FAILURE;
  std::vector<double> gaps;
  for (std::size_t n = 1; n < times.size(); ++n) gaps.push_back(times[n] - times[n - 1]);
  std::sort(gaps.begin(), gaps.end());
  const auto quantile = [&gaps](double q) {
    return gaps[static_cast<std::size_t>(q * static_cast<double>(gaps.size() - 1))];
  };
  const double nominal = 1000.0 / lap.jog.Timer1.Interval;
  const double mean = static_cast<double>(gaps.size()) * 1000 / (times.back() - times.front());
  std::printf(
      "%zu ticks, mean %.3f/s (nominal %.3f/s, %+.3f %%); interval in ms: min %.3f, 1 %% %.3f, "
      "median %.3f, 99 %% %.3f, max %.3f\n",
      times.size(), mean, nominal, (mean / nominal - 1) * 100, gaps.front(), quantile(0.01),
      quantile(0.5), quantile(0.99), gaps.back());
  return EXIT_SUCCESS;
}
