// Waves in time by the clock: which timer runs after each action, how many ticks draw, when a run
// stops, and how many rays it may have.
#include <string>
#include <utility>

#include "tests/screens/kelmo/AnimationTest.h"

namespace lensbench {
namespace {

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb darkBlue = RGB(2, 0, 150);

class AnimationRulesTest : public AnimationTest {
 protected:
  void expectTimers(bool enabled1, int interval1, bool enabled2, int interval2) {
    EXPECT_EQ(c.Timer1.Enabled(), enabled1);
    EXPECT_EQ(c.Timer1.Interval(), interval1);
    EXPECT_EQ(c.Timer2.Enabled(), enabled2);
    EXPECT_EQ(c.Timer2.Interval(), interval2);
  }
};

TEST_F(AnimationRulesTest, PlaneWavesRunTheSecondTimerOnAFreshScene) {
  clutter();
  c.parallilakymata.trigger();
  expectTimers(false, 2000, true, 1);
  EXPECT_FALSE(clockOf(c.Timer1).running);
  EXPECT_TRUE(clockOf(c.Timer2).running);
  EXPECT_EQ(set().size(), 21U);
  EXPECT_TRUE(showsStep(0, false));
}

TEST_F(AnimationRulesTest, WavesInTimeRunTheFirstTimerOnAFreshScene) {
  clutter();
  c.kymatachronika.trigger();
  expectTimers(true, 1, false, 2000);
  EXPECT_TRUE(clockOf(c.Timer1).running);
  EXPECT_FALSE(clockOf(c.Timer2).running);
  EXPECT_EQ(set().size(), 76U);
  EXPECT_TRUE(showsStep(0, true));
}

TEST_F(AnimationRulesTest, AtIntervalOneNoTickComesFasterThanAFrame) {
  c.kymatachronika.trigger();
  EXPECT_GE(clockOf(c.Timer1).interval, 16);
  EXPECT_LE(clockOf(c.Timer1).interval, 17);
}

TEST_F(AnimationRulesTest, AtIntervalOne240TicksDrawAndThe502ndStops) {
  c.parallilakymata.trigger();
  QImage previous = picture();
  for (int t = 1; t <= 240; ++t) {
    ASSERT_TRUE(tick(c.Timer2));
    const QImage shown = picture();
    ASSERT_FALSE(shown == previous) << "tick " << t;
    previous = shown;
  }
  for (int t = 241; t <= 501; ++t) {
    ASSERT_TRUE(tick(c.Timer2));
    if (t % 20 == 1) {
      ASSERT_TRUE(samePicture(picture(), previous)) << "tick " << t;
    }
    ASSERT_EQ(c.Timer2.Interval(), 1) << "tick " << t;
  }
  ASSERT_TRUE(tick(c.Timer2));
  expectTimers(false, 2000, true, 0);
  EXPECT_FALSE(tick(c.Timer2));
  EXPECT_TRUE(samePicture(picture(), previous));
}

TEST_F(AnimationRulesTest, TheFirstTimerFollowsTheSameRules) {
  c.kymatachronika.trigger();
  EXPECT_EQ(ticks(c.Timer1, 240), 240);
  const QImage last = picture();
  EXPECT_EQ(ticks(c.Timer1, 1000), 262);
  expectTimers(true, 0, false, 2000);
  EXPECT_TRUE(samePicture(picture(), last));
}

TEST_F(AnimationRulesTest, AfterTheLastStepTheTwoFrontsStandStill) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 1000);
  EXPECT_TRUE(showsStep(240, false));
  EXPECT_GT(count(red), 100);
  EXPECT_GT(count(darkBlue), 100);
}

TEST_F(AnimationRulesTest, TheCounterIsZeroAgainAfterARun) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 1000);
  c.Timer2.Interval(1);
  tick(c.Timer2);
  EXPECT_TRUE(showsStep(1, false));
}

TEST_F(AnimationRulesTest, TheElapsedTimeIsTheIntervalTimesTheCounter) {
  // Draws until interval x counter is beyond 500: at 100 after six ticks, at 250 after three.
  for (const auto& [interval, drawn] : {std::pair(100, 6), {250, 3}, {500, 2}, {501, 1}}) {
    c.parallilakymata.trigger();
    c.Timer2.Interval(interval);
    EXPECT_EQ(ticks(c.Timer2, 100), drawn + 1) << interval;
    EXPECT_EQ(c.Timer2.Interval(), 0);
    EXPECT_TRUE(c.Timer2.Enabled());
    EXPECT_TRUE(showsStep(drawn, false)) << interval;
  }
}

TEST_F(AnimationRulesTest, AfterABundleTheFirstTickDrawsOneStepAndTheSecondStops) {
  sendBundle("0");
  expectTimers(false, 1500, true, 1550);
  const QImage bundle = picture();
  ASSERT_TRUE(tick(c.Timer2));
  EXPECT_EQ(c.Timer2.Interval(), 1550);
  const QImage step = picture();
  EXPECT_FALSE(step == bundle);
  ASSERT_TRUE(tick(c.Timer2));
  expectTimers(false, 1500, true, 0);
  EXPECT_TRUE(samePicture(picture(), step));
  EXPECT_FALSE(tick(c.Timer2));
}

TEST_F(AnimationRulesTest, WithOnlyWavesTheFirstTimerDrawsOneStepOfTheFanAndStops) {
  c.Check2.Value(true);
  press(-260.0, 70.0, Qt::ShiftModifier);
  EXPECT_EQ(c.Timer2.Interval(), 11500);
  EXPECT_FALSE(tick(c.Timer2));
  EXPECT_FALSE(tick(c.Timer1)) << "its interval is still 0";
  release(-260.0, 70.0);
  expectTimers(true, 1500, false, 1500);
  const QImage fan = picture();
  ASSERT_TRUE(tick(c.Timer1));
  EXPECT_FALSE(picture() == fan);
  ASSERT_TRUE(tick(c.Timer1));
  expectTimers(true, 0, false, 1500);
}

TEST_F(AnimationRulesTest, WavesInTimeChosenWhilePlaneWavesRunTakeTheirPlace) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 100);
  c.kymatachronika.trigger();
  expectTimers(true, 1, false, 2000);
  EXPECT_TRUE(showsStep(0, true));
  EXPECT_FALSE(tick(c.Timer2));
  tick(c.Timer1);
  EXPECT_TRUE(showsStep(1, true));
}

TEST_F(AnimationRulesTest, PlaneWavesChosenWhileWavesInTimeRunTakeTheirPlace) {
  c.kymatachronika.trigger();
  ticks(c.Timer1, 100);
  c.parallilakymata.trigger();
  expectTimers(false, 2000, true, 1);
  EXPECT_FALSE(tick(c.Timer1));
  tick(c.Timer2);
  EXPECT_TRUE(showsStep(1, false));
}

TEST_F(AnimationRulesTest, AnEntryChosenAgainStartsAnew) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 100);
  c.parallilakymata.trigger();
  EXPECT_TRUE(showsStep(0, false));
  ticks(c.Timer2, 2);
  EXPECT_TRUE(showsStep(2, false));
}

TEST_F(AnimationRulesTest, PlaneWavesStandAtTheAngleOfTheLastBundle) {
  c.parallilakymata.trigger();
  EXPECT_NEAR(set()[0].pieces[0].direction.y, 0.0, 1e-12);
  sendBundle("30");
  c.desmi1.Value(50);
  c.parallilakymata.trigger();
  EXPECT_EQ(set().size(), 51U);
  for (const auto& ray : set()) {
    EXPECT_NEAR(ray.pieces[0].direction.y, 0.5, 1e-12);
  }
}

TEST_F(AnimationRulesTest, WavesInTimeLeaveThePlacedSource) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  c.kymatachronika.trigger();
  for (const auto& ray : set()) {
    EXPECT_EQ(ray.start().x, -260.0);
    EXPECT_EQ(ray.start().y, 70.0);
    EXPECT_EQ(ray.phase, 0.0);
  }
}

TEST_F(AnimationRulesTest, MoreThan1501RaysAreSubscriptOutOfRangeBeforeAnythingIsDrawn) {
  c.arvimaton.Value(9);
  c.desmi1.Value(118);  // 1502 rays
  const auto before = state();
  const QImage shown = picture();
  try {
    c.kymatachronika.trigger();
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 9);
    EXPECT_NE(error.detail().find("1502"), std::string::npos) << error.detail();
    EXPECT_NE(error.detail().find("1501"), std::string::npos) << error.detail();
  }
  EXPECT_EQ(state(), before);
  EXPECT_TRUE(samePicture(picture(), shown));
}

TEST_F(AnimationRulesTest, Exactly1501RaysMove) {
  c.arvimaton.Value(10);
  c.desmi1.Value(131);
  EXPECT_NO_THROW(c.kymatachronika.trigger());
  EXPECT_EQ(set().size(), 1501U);
  EXPECT_EQ(ticks(c.Timer1, 3), 3);
  EXPECT_TRUE(showsStep(3, true));
}

TEST_F(AnimationRulesTest, TheLargestBundleMoves) {
  c.arvimaton.Value(5);
  c.desmi1.Value(150);
  EXPECT_NO_THROW(c.parallilakymata.trigger());
  EXPECT_EQ(set().size(), 151U);
}

}  // namespace
}  // namespace lensbench
