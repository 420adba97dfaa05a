// Waves in time as pictures: what each step shows and leaves, and what other actions in the middle
// of a run do to it.
#include "tests/screens/kelmo/AnimationTest.h"

namespace lensbench {
namespace {

constexpr Rgb red = RGB(255, 0, 0);
constexpr Rgb darkBlue = RGB(2, 0, 150);

class AnimationPictureTest : public AnimationTest {
 protected:
  void expectSteps(Timer& timer, bool closed) {
    int done = 0;
    for (const int step : {1, 2, 20, 40, 41, 60, 100, 140, 180, 220, 240}) {
      done += ticks(timer, step - done);
      ASSERT_EQ(done, step);
      EXPECT_TRUE(showsStep(step, closed)) << "step " << step;
    }
  }
};

TEST_F(AnimationPictureTest, PlaneWavesShowTheSceneAndTheFrontsOfEachStep) {
  c.parallilakymata.trigger();
  expectSteps(c.Timer2, false);
}

TEST_F(AnimationPictureTest, WavesInTimeShowTheSceneAndTheFrontsOfEachStep) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  release(-260.0, 70.0);
  c.kymatachronika.trigger();
  expectSteps(c.Timer1, true);
}

TEST_F(AnimationPictureTest, AStrongLensAndAnObliqueDenseBundleToo) {
  c.deiktisdiathlasis.Value(250);
  c.desmi1.Value(150);
  sendBundle("20");
  c.parallilakymata.trigger();
  expectSteps(c.Timer2, false);
}

TEST_F(AnimationPictureTest, RubbingOutLeavesNoTraceOnAnOversampledPicture) {
  screen.canvas().setOversampling(2);
  c.deiktisdiathlasis.Value(250);
  sendBundle("20");
  c.parallilakymata.trigger();
  ticks(c.Timer2, 90);
  const QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, waveSceneAt(90, false)));
}

TEST_F(AnimationPictureTest, AHalfClosedDiaphragmStopsPartOfTheFront) {
  c.VScroll1.Value(-20);
  c.VScroll2.Value(20);
  c.HScroll1.Value(-40);
  c.desmi1.Value(100);
  c.parallilakymata.trigger();
  expectSteps(c.Timer2, false);
}

TEST_F(AnimationPictureTest, TheSecondFrontFollows40StepsBehind) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 40);
  EXPECT_GT(count(red), 100);
  EXPECT_EQ(count(darkBlue), 0);
  tick(c.Timer2);
  EXPECT_GT(count(darkBlue), 100);
}

TEST_F(AnimationPictureTest, TheSceneUnderTheWavesIsWhite) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 5);
  EXPECT_EQ(pixelAt(-30.0, 20.0), white);
}

TEST_F(AnimationPictureTest, AnIndexMovedInMidRunBendsTheNextFrontAndLeavesNoTrace) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 99);
  const QImage before = picture();
  c.deiktisdiathlasis.Value(220);
  EXPECT_TRUE(samePicture(picture(), before)) << "until the next tick";
  tick(c.Timer2);
  ASSERT_FALSE(set().empty());
  EXPECT_EQ(set().front().n, 2.2);
  EXPECT_TRUE(showsStep(100, false));
  c.deiktisdiathlasis.Value(100);
  tick(c.Timer2);
  EXPECT_TRUE(showsStep(101, false));
  c.deiktisdiathlasis.Value(60);
  ticks(c.Timer2, 50);
  EXPECT_TRUE(showsStep(151, false));
}

TEST_F(AnimationPictureTest, AnIndexMovedInMidRunCountsForAFanToo) {
  c.kymatachronika.trigger();
  ticks(c.Timer1, 99);
  c.deiktisdiathlasis.Value(60);
  ticks(c.Timer1, 2);
  EXPECT_TRUE(showsStep(101, true));
}

TEST_F(AnimationPictureTest, CountsMovedInMidRunChangeNothingBeforeTheNextSet) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 60);
  c.desmi1.Value(77);
  c.arvimaton.Value(50);
  ticks(c.Timer2, 10);
  EXPECT_EQ(set().size(), 21U);
  EXPECT_TRUE(showsStep(70, false));
}

TEST_F(AnimationPictureTest, ANewBundleInMidRunTakesThePlaceOfTheOldWaves) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 60);
  sendBundle("10");
  const QImage bundle = picture();
  screen.drawBundle(screen.gonia);
  EXPECT_TRUE(samePicture(picture(), bundle)) << "no trace of the waves";
  EXPECT_EQ(set().size(), 21U);
  // One step, counted from 0, over the bundle; then the timer stops.
  EXPECT_EQ(ticks(c.Timer2, 10), 2);
  EXPECT_GT(count(red), 0);
}

TEST_F(AnimationPictureTest, AShiftFanInMidRunStopsThePlaneWaves) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 60);
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage fan = picture();
  EXPECT_FALSE(tick(c.Timer2));
  EXPECT_FALSE(tick(c.Timer1));
  EXPECT_EQ(set().size(), 76U);
  release(-260.0, 70.0);
  EXPECT_TRUE(samePicture(picture(), fan));
}

TEST_F(AnimationPictureTest, AMoveToAnotherScreenLetsTheWavesRunOn) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 60);
  c.singleray.trigger();
  screen.Hide();
  EXPECT_EQ(ticks(c.Timer2, 20), 20);
  screen.Show();
  EXPECT_TRUE(showsStep(80, false));
  c.SAHLIC.trigger();
  EXPECT_EQ(ticks(c.Timer2, 20), 20);
  EXPECT_TRUE(showsStep(100, false));
}

TEST_F(AnimationPictureTest, ACancelledQuestionLetsTheWavesRunOn) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 60);
  dialogs.answer.reset();
  c.EPANALIPSI.trigger();
  ticks(c.Timer2, 10);
  EXPECT_TRUE(showsStep(70, false));
}

TEST_F(AnimationPictureTest, WithoutALensTheFrontsRunStraightOn) {
  c.kentrokykloy2.Value(-300);
  c.kentrokykloy.Value(300);
  c.parallilakymata.trigger();
  expectSteps(c.Timer2, false);
}

}  // namespace
}  // namespace lensbench
