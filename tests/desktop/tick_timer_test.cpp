#include "desktop/tick_timer.h"

#include <QTest>
#include <gtest/gtest.h>

namespace monitra::desktop {
namespace {

using std::chrono::milliseconds;

TEST(TickSchedule, KeepsToItsGridAndMakesUpALateTickWithoutABurst) {
  // Each row: when the ticks of an interval of 90 µs come, and when the next one is due.
  const std::pair<std::vector<int>, int> rows[] = {{{90}, 180},
                                                   {{90, 183, 294}, 360},
                                                   {{90, 220}, 280},
                                                   {{90, 330}, 390},
                                                   {{90, 330, 390, 450, 510}, 570},
                                                   {{90, 330, 390, 450, 510, 570, 630}, 720},
                                                   {{50180}, 50240},
                                                   {{50181}, 50271},
                                                   {{900000, 900090}, 900180}};
  for (const auto& [ticks, due] : rows) {
    using std::chrono::microseconds;
    TickSchedule schedule(milliseconds(7), microseconds(90));
    EXPECT_EQ(schedule.due(), milliseconds(7) + microseconds(90));
    for (const int tick : ticks) schedule.ticked(milliseconds(7) + microseconds(tick));
    EXPECT_EQ(schedule.due() - milliseconds(7), microseconds(due)) << ticks.back();
  }
}

TEST(TickTimer, TicksWhileItIsEnabledWithAnIntervalAboveZero) {
  controls::Timer timer;
  const TickTimer ticking(timer);
  int ticks = 0;
  timer.Tick.handle([&ticks] { ++ticks; });
  timer.Interval = 0;
  timer.Enabled = true;
  QTest::qWait(20);
  EXPECT_EQ(ticks, 0);
  timer.Interval = 1;
  EXPECT_TRUE(QTest::qWaitFor([&ticks] { return ticks >= 20; }));
  timer.Enabled = false;
  const int before = ticks;
  QTest::qWait(20);
  EXPECT_EQ(ticks, before);
  timer.Interval = 60000;
  timer.Enabled = true;
  timer.Interval = 2;
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > before; })) << "a new interval starts at once";
}

}  // namespace
}  // namespace monitra::desktop
