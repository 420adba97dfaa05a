#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "canvas/qt/Form.h"
#include "canvas/qt/Timer.h"
#include "tests/support/HandClock.h"

namespace lensbench {
namespace {

class TimerTest : public testing::Test {
 protected:
  TimerTest() {
    QObject::connect(&timer, &Timer::Tick, [this] { ++ticks; });
  }

  HandClock clock;
  Form form{FormDesign{}};
  Timer timer{form, "Timer1", clock};
  int ticks = 0;
};

TEST_F(TimerTest, AnIntervalOfZeroNeverTicks) {
  EXPECT_EQ(timer.objectName(), "Timer1");
  EXPECT_EQ(timer.Interval(), 0);
  timer.Enabled(true);
  timer.Interval(0);
  clock.advance(5000);
  EXPECT_EQ(ticks, 0);
}

TEST_F(TimerTest, TicksOnceEachIntervalWhileEnabled) {
  timer.Interval(100);
  clock.advance(99);
  EXPECT_EQ(ticks, 0);
  clock.advance(1);
  EXPECT_EQ(ticks, 1);
  clock.advance(900);
  EXPECT_EQ(ticks, 10);
  timer.Enabled(false);
  clock.advance(1000);
  EXPECT_EQ(ticks, 10);
  timer.Enabled(true);
  clock.advance(100);
  EXPECT_EQ(ticks, 11);
}

TEST_F(TimerTest, SettingEitherPropertyBeginsTheIntervalAnew) {
  timer.Interval(100);
  clock.advance(90);
  timer.Interval(100);
  clock.advance(90);
  timer.Enabled(true);
  clock.advance(99);
  EXPECT_EQ(ticks, 0);
  clock.advance(1);
  EXPECT_EQ(ticks, 1);
  timer.Interval(0);
  clock.advance(1000);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, NeverTicksMoreOftenThanADisplayShowsFrames) {
  timer.Interval(1);
  clock.advance(1000);
  EXPECT_LE(ticks, 60);
  EXPECT_GE(ticks, 50);
  EXPECT_EQ(timer.Interval(), 1);
}

TEST_F(TimerTest, DoesNotTickWhileTicksAreHeld) {
  timer.Interval(50);
  {
    const TickHold hold(clock);
    clock.advance(1000);
    EXPECT_EQ(ticks, 0);
    {
      const TickHold inner(clock);
      clock.advance(100);
    }
    clock.advance(100);
    EXPECT_EQ(ticks, 0);
  }
  clock.advance(100);
  EXPECT_EQ(ticks, 2);
}

TEST_F(TimerTest, AHandlerMayChangeItsOwnTimer) {
  QObject::connect(&timer, &Timer::Tick, [this] { timer.Interval(timer.Interval() * 2); });
  timer.Interval(50);
  clock.advance(50 + 100 + 200);
  EXPECT_EQ(ticks, 3);
}

TEST(ToolkitTimer, TicksByItself) {
  Form form{FormDesign{}};
  QtClock clock;
  Timer timer(form, "Timer1", clock);
  int ticks = 0;
  QObject::connect(&timer, &Timer::Tick, [&] { ++ticks; });
  QElapsedTimer elapsed;
  elapsed.start();
  timer.Interval(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 5; }, 5000));
  EXPECT_GE(elapsed.elapsed(), 5 * 16);
}

}  // namespace
}  // namespace lensbench
