// Waves that a person pauses, steps and starts anew by keys: what they show is what a run shows.
#include <vector>

#include <QTest>

#include "tests/screens/kelmo/AnimationTest.h"

namespace lensbench {
namespace {

class HandWavesTest : public AnimationTest {
 protected:
  struct Wave {
    MenuEntry& entry;
    Timer& timer;
  };
  std::vector<Wave> waves() {
    return {{c.parallilakymata, c.Timer2}, {c.kymatachronika, c.Timer1}};
  }
  // To the form, which gets what no control used.
  void key(Qt::Key key) { QTest::keyClick(&screen, key); }
  // What a run shows after each of so many ticks, from none on.
  std::vector<QImage> run(const Wave& wave, int length) {
    wave.entry.trigger();
    std::vector<QImage> shown{picture()};
    for (int t = 1; t <= length; ++t) {
      EXPECT_TRUE(tick(wave.timer));
      shown.push_back(picture());
    }
    return shown;
  }
};

TEST_F(HandWavesTest, ThePictureAfterSoManyStepsIsThatOfARunAtThatTick) {
  for (const Wave& wave : waves()) {
    SCOPED_TRACE(wave.entry.objectName().toStdString());
    const std::vector<QImage> shown = run(wave, 60);
    wave.entry.trigger();
    key(Qt::Key_Space);
    for (std::size_t step = 1; step < shown.size(); ++step) {
      key(Qt::Key_Period);
      ASSERT_TRUE(samePicture(picture(), shown[step])) << "step " << step;
    }
    for (std::size_t step = shown.size() - 1; step > 0; --step) {
      key(Qt::Key_Comma);
      ASSERT_TRUE(samePicture(picture(), shown[step - 1])) << "back to " << step - 1;
    }
    key(Qt::Key_Comma);
    EXPECT_TRUE(samePicture(picture(), shown[0])) << "there is nothing before the start";
  }
}

TEST_F(HandWavesTest, PausedWavesStandWhileTheirTimerTicksAndGoOnFromThere) {
  for (const Wave& wave : waves()) {
    SCOPED_TRACE(wave.entry.objectName().toStdString());
    const std::vector<QImage> shown = run(wave, 30);
    wave.entry.trigger();
    ticks(wave.timer, 20);
    const std::vector<std::string> before = state();
    key(Qt::Key_Space);
    EXPECT_TRUE(shared.paused);
    EXPECT_EQ(ticks(wave.timer, 1000), 1000);
    EXPECT_TRUE(samePicture(picture(), shown[20]));
    EXPECT_EQ(state(), before) << "timers, entries and controls are as in the run";
    key(Qt::Key_Space);
    EXPECT_FALSE(shared.paused);
    ticks(wave.timer, 10);
    EXPECT_TRUE(samePicture(picture(), shown[30]));
    EXPECT_EQ(ticks(wave.timer, 1000), 502 - 30) << "the run ends when it would have";
  }
}

TEST_F(HandWavesTest, GoesOnFromTheStepThatWasReachedByHand) {
  const std::vector<QImage> shown = run({c.kymatachronika, c.Timer1}, 50);
  c.kymatachronika.trigger();
  ticks(c.Timer1, 40);
  key(Qt::Key_Space);
  for (int i = 0; i < 15; ++i) key(Qt::Key_Comma);
  EXPECT_TRUE(samePicture(picture(), shown[25]));
  key(Qt::Key_Space);
  ticks(c.Timer1, 5);
  EXPECT_TRUE(samePicture(picture(), shown[30]));
}

TEST_F(HandWavesTest, NoStepLeadsBeyondTheLastThatIsDrawn) {
  const std::vector<QImage> shown = run({c.parallilakymata, c.Timer2}, 240);
  ticks(c.Timer2, 100);
  key(Qt::Key_Space);
  key(Qt::Key_Period);
  EXPECT_TRUE(samePicture(picture(), shown[240]));
  key(Qt::Key_Comma);
  EXPECT_TRUE(samePicture(picture(), shown[239])) << "however long they have stood";
}

TEST_F(HandWavesTest, WavesThatMoveAreNotStepped) {
  const std::vector<QImage> shown = run({c.kymatachronika, c.Timer1}, 12);
  c.kymatachronika.trigger();
  ticks(c.Timer1, 10);
  key(Qt::Key_Period);
  key(Qt::Key_Comma);
  EXPECT_TRUE(samePicture(picture(), shown[10]));
  ticks(c.Timer1, 2);
  EXPECT_TRUE(samePicture(picture(), shown[12]));
}

TEST_F(HandWavesTest, HomeStartsThemAnewInARunInAPauseAndAfterTheEnd) {
  for (const Wave& wave : waves()) {
    SCOPED_TRACE(wave.entry.objectName().toStdString());
    const std::vector<QImage> shown = run(wave, 20);
    const auto expectAnew = [&] {
      key(Qt::Key_Home);
      EXPECT_TRUE(samePicture(picture(), shown[0]));
      EXPECT_TRUE(wave.entry.Checked());
      EXPECT_EQ(ticks(wave.timer, 20), 20);
      EXPECT_TRUE(samePicture(picture(), shown[20]));
    };
    expectAnew();
    key(Qt::Key_Space);
    expectAnew();
    ticks(wave.timer, 1000);
    EXPECT_FALSE(wave.entry.Checked());
    expectAnew();
  }
}

TEST_F(HandWavesTest, WithoutWavesTheKeysDoNothing) {
  for (const bool withRays : {false, true}) {
    if (withRays) sendBundle("10");
    const std::vector<std::string> before = state();
    const QImage shown = picture();
    for (const Qt::Key k : {Qt::Key_Space, Qt::Key_Period, Qt::Key_Comma, Qt::Key_Home}) key(k);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(samePicture(picture(), shown));
    EXPECT_FALSE(shared.paused);
  }
}

TEST_F(HandWavesTest, AnEntryStartsItsWavesWhateverWasPaused) {
  c.parallilakymata.trigger();
  key(Qt::Key_Space);
  c.kymatachronika.trigger();
  EXPECT_FALSE(shared.paused);
  ticks(c.Timer1, 7);
  EXPECT_TRUE(showsStep(7, true));
}

TEST_F(HandWavesTest, APauseOutlastsAWhileOnAnotherScreen) {
  c.kymatachronika.trigger();
  ticks(c.Timer1, 15);
  key(Qt::Key_Space);
  screen.Hide();
  ticks(c.Timer1, 5);
  screen.Show();
  ticks(c.Timer1, 5);
  EXPECT_TRUE(showsStep(15, true));
  key(Qt::Key_Period);
  EXPECT_TRUE(showsStep(16, true));
}

TEST_F(HandWavesTest, AStepShowsThePresentIndex) {
  c.kymatachronika.trigger();
  ticks(c.Timer1, 100);
  key(Qt::Key_Space);
  c.deiktisdiathlasis.Value(200);
  key(Qt::Key_Period);
  EXPECT_TRUE(showsStep(101, true));
}

}  // namespace
}  // namespace lensbench
