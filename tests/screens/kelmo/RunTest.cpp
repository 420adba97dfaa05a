// A run of moving waves: what it goes on through, for the values that an action has set, and what
// ends it.
#include <functional>
#include <vector>

#include "tests/screens/kelmo/AnimationTest.h"

namespace lensbench {
namespace {

using poreiaaktinon::Fronts;
using poreiaaktinon::LensScene;
using poreiaaktinon::WaveScene;

class RunTest : public AnimationTest {
 protected:
  struct Wave {
    MenuEntry& entry;
    Timer& timer;
    MenuEntry& otherEntry;
    Timer& otherTimer;
    bool closed;
  };
  std::vector<Wave> waves() {
    return {{c.parallilakymata, c.Timer2, c.kymatachronika, c.Timer1, false},
            {c.kymatachronika, c.Timer1, c.parallilakymata, c.Timer2, true}};
  }
  // In the middle of a run an action leaves the waves at their step, for what the controls now say,
  // and the run goes on to its end.
  void expectToGoOnThrough(const std::function<void()>& action) {
    for (const Wave& wave : waves()) {
      SCOPED_TRACE(wave.entry.objectName().toStdString());
      wave.entry.trigger();
      ticks(wave.timer, 100);
      action();
      EXPECT_TRUE(showsWaves());
      ASSERT_TRUE(screen.set());
      EXPECT_EQ(screen.set()->bench, screen.bench());
      EXPECT_TRUE(showsStep(100, wave.closed));
      EXPECT_TRUE(wave.entry.Checked());
      EXPECT_EQ(wave.timer.Interval(), 1);
      ticks(wave.timer, 1);
      EXPECT_TRUE(showsStep(101, wave.closed));
      EXPECT_EQ(ticks(wave.timer, 1000), 401);
    }
  }
  bool showsWaves() {
    const auto& layers = screen.shown().layers;
    return layers.size() == 2 && std::holds_alternative<WaveScene>(layers[0]) &&
           std::holds_alternative<Fronts>(layers[1]);
  }
  // In the middle of a run an action ends it: nothing moves any more by the clock of the entry.
  void expectToEndBy(const std::function<void()>& action) {
    for (const Wave& wave : waves()) {
      SCOPED_TRACE(wave.entry.objectName().toStdString());
      wave.entry.trigger();
      ticks(wave.timer, 100);
      action();
      EXPECT_FALSE(wave.timer.Enabled() && wave.timer.Interval() == 1);
      ticks(c.Timer1, 10);
      ticks(c.Timer2, 10);
      EXPECT_FALSE(wave.entry.Checked());
      EXPECT_FALSE(wave.otherEntry.Checked());
      EXPECT_FALSE(tick(c.Timer1));
      EXPECT_FALSE(tick(c.Timer2));
    }
  }
};

TEST_F(RunTest, AnEntryIsMarkedUntilItsWavesHaveStopped) {
  for (const Wave& wave : waves()) {
    wave.entry.trigger();
    EXPECT_TRUE(wave.entry.Checked());
    EXPECT_FALSE(wave.otherEntry.Checked());
    EXPECT_EQ(ticks(wave.timer, 501), 501);
    EXPECT_TRUE(wave.entry.Checked());
    EXPECT_EQ(ticks(wave.timer, 1), 1);
    EXPECT_FALSE(wave.entry.Checked());
  }
}

TEST_F(RunTest, TheOneStepAfterABundleTakesItsMarkAway) {
  sendBundle("10");
  EXPECT_TRUE(c.parallilakymata.Checked());
  EXPECT_EQ(ticks(c.Timer2, 10), 2);
  EXPECT_FALSE(c.parallilakymata.Checked());
}

TEST_F(RunTest, GoesOnThroughAChangedLens) {
  for (ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.kentrokykloy, &c.kentrokykloy2}) {
    expectToGoOnThrough([bar] { bar->Value(bar->Value() - 7); });
  }
}

TEST_F(RunTest, GoesOnThroughAMovedDiaphragm) {
  expectToGoOnThrough([this] { c.HScroll1.Value(c.HScroll1.Value() - 40); });
  expectToGoOnThrough([this] { c.VScroll1.Value(c.VScroll1.Value() + 30); });
  expectToGoOnThrough([this] { c.VScroll2.Value(c.VScroll2.Value() - 30); });
  expectToGoOnThrough([this] {
    dragFromTo({blades().X, blades().yA + 20.0}, {blades().X + 11.0, 45.5});
  });
}

TEST_F(RunTest, GoesOnThroughPressesAndDragsOfTheCircles) {
  expectToGoOnThrough([this] { dragFromTo({300.0, 50.0}, {310.0, 60.0}); });
  expectToGoOnThrough([this] { dragFromTo({screen.xc2(), 0.0}, {screen.xc2() + 5.0, 0.0}); });
  expectToGoOnThrough([this] {
    const double edge = screen.xc1() - screen.R1();
    dragFromTo({edge, 0.0}, {edge - 3.0, 0.0});
  });
}

TEST_F(RunTest, WavesMeetTheBladeThatIsDraggedAndGoBackWhenItIsNotLetGo) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 100);
  const poreiaaktinon::Diafragma before = blades();
  press(0.0, 199.5);
  drag(-150.0, 20.0);
  ticks(c.Timer2, 1);
  EXPECT_EQ(screen.set()->bench.diafragma, blades());
  EXPECT_TRUE(showsStep(101, false));
  loseRelease();
  drag(-140.0, 20.0);
  EXPECT_EQ(blades(), before);
  EXPECT_TRUE(showsStep(101, false));
}

TEST_F(RunTest, ABladeThatOutlivesTheRunGoesBackWithTheFrontsThatItStopped) {
  for (const Wave& wave : waves()) {
    SCOPED_TRACE(wave.entry.objectName().toStdString());
    wave.entry.trigger();
    ticks(wave.timer, 100);
    press(0.0, 199.5);
    drag(-150.0, -60.0);
    ASSERT_EQ(ticks(wave.timer, 1000), 402) << "to the end of the run";
    EXPECT_TRUE(showsStep(240, wave.closed));
    const QImage stopped = picture();
    loseRelease();
    drag(-140.0, -60.0);
    EXPECT_EQ(screen.set()->bench, screen.bench());
    EXPECT_TRUE(showsStep(240, wave.closed));
    EXPECT_FALSE(samePicture(picture(), stopped)) << "the blade had been in the way";
  }
}

TEST_F(RunTest, BeforeTheFirstTickTheNewLensStandsAlone) {
  c.parallilakymata.trigger();
  c.aktina1.Value(120);
  EXPECT_TRUE(showsStep(0, false));
  ticks(c.Timer2, 1);
  EXPECT_TRUE(showsStep(1, false));
}

TEST_F(RunTest, AnIndexChangedBeforeTheFirstTickLeavesNoFocalCircles) {
  c.parallilakymata.trigger();
  const QImage before = picture();
  c.deiktisdiathlasis.Value(220);
  EXPECT_TRUE(samePicture(picture(), before)) << "until the next tick";
  ticks(c.Timer2, 1);
  EXPECT_TRUE(showsStep(1, false));
}

TEST_F(RunTest, WavesThatStandStillFollowANewLensWhileTheyAreCounted) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 400);
  c.aktina2.Value(130);
  EXPECT_TRUE(showsStep(240, false));
  ticks(c.Timer2, 1);
  EXPECT_TRUE(showsStep(240, false));
}

TEST_F(RunTest, AfterTheRunANewLensIsDrawnAndNothingMoves) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 1000);
  c.aktina2.Value(130);
  EXPECT_TRUE(showsSceneOnly());
  EXPECT_FALSE(screen.set());
}

TEST_F(RunTest, EndsByAFan) {
  expectToEndBy([this] {
    press(-260.0, 70.0, Qt::ShiftModifier);
    release(-260.0, 70.0);
    EXPECT_EQ(screen.shown().layers.size(), 2U);
    EXPECT_EQ(set().size(), 76U);
  });
}

TEST_F(RunTest, EndsByABundle) {
  expectToEndBy([this] {
    sendBundle("20");
    EXPECT_TRUE(std::holds_alternative<LensScene>(screen.shown().layers.at(0)));
  });
}

TEST_F(RunTest, EndsByAPressThatDrawsTheConstruction) {
  expectToEndBy([this] {
    press(-20.0, 30.0, Qt::ShiftModifier);
    release(-20.0, 30.0);
    EXPECT_FALSE(screen.set());
    EXPECT_EQ(screen.shown().layers.size(), 2U);
  });
}

TEST_F(RunTest, EndsByAReleaseWhileOnlyWavesAreChosen) {
  c.Check2.Value(true);
  for (const Wave& wave : waves()) {
    wave.entry.trigger();
    ticks(wave.timer, 100);
    press(300.0, 50.0);
    EXPECT_TRUE(showsStep(100, wave.closed));
    release(300.0, 50.0);
    EXPECT_EQ(c.Timer1.Interval(), 1500);
    EXPECT_FALSE(c.Timer2.Enabled());
    EXPECT_TRUE(c.kymatachronika.Checked());
    EXPECT_FALSE(c.parallilakymata.Checked());
    EXPECT_TRUE(showsStep(100, wave.closed)) << "the fronts stand still";
    // The entry of the plane waves has disabled the first timer.
    EXPECT_EQ(ticks(c.Timer1, 10), wave.closed ? 1 : 0);
    EXPECT_EQ(c.kymatachronika.Checked(), !wave.closed);
    press(300.0, 50.0);
    EXPECT_TRUE(showsSceneOnly());
    release(300.0, 50.0);
  }
}

TEST_F(RunTest, OnlyWavesClearsAndDropsTheSetAndTheClockRunsOut) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 100);
  c.Check2.click();
  EXPECT_FALSE(screen.set());
  EXPECT_TRUE(showsSceneOnly());
  EXPECT_EQ(ticks(c.Timer2, 1000), 402);
  EXPECT_TRUE(showsSceneOnly());
  EXPECT_FALSE(c.parallilakymata.Checked());
}

TEST_F(RunTest, MovingWavesGoOnAtTheNewSize) {
  for (const bool fan : {false, true}) {
    giveSize(usualSize);
    Timer& timer = fan ? c.Timer1 : c.Timer2;
    (fan ? c.kymatachronika : c.parallilakymata).trigger();
    ticks(timer, 130);
    giveSize({1300, 700});
    EXPECT_TRUE(showsStep(130, fan));
    EXPECT_EQ(screen.set()->edges, edges());
    ticks(timer, 10);
    EXPECT_TRUE(showsStep(140, fan));
    giveSize({1900, 1000});
    EXPECT_TRUE(showsStep(140, fan));
    ticks(timer, 1);
    EXPECT_TRUE(showsStep(141, fan));
  }
}

TEST_F(RunTest, TheRaysAreTracedOnceForTheirNewEdges) {
  c.parallilakymata.trigger();
  ticks(c.Timer2, 50);
  giveSize({1300, 700});
  const auto& fronts = std::get<Fronts>(screen.shown().layers.at(1));
  EXPECT_EQ(fronts.sent.edges, edges());
  EXPECT_EQ(fronts.sent.paths, screen.set()->paths);
  sendBundle("10");
  giveSize(usualSize);
  const auto& light = std::get<poreiaaktinon::Light>(screen.shown().layers.at(1));
  EXPECT_EQ(light.sent.edges, edges());
  EXPECT_EQ(light.sent.paths, screen.set()->paths);
}

TEST_F(RunTest, AnotherPixelRatioOrOversamplingInARunLeavesNoTrace) {
  c.parallilakymata.trigger();
  for (const int k : {2, 1, 3}) {
    ticks(c.Timer2, 25);
    screen.canvas().setOversampling(k);
    ticks(c.Timer2, 1);
    EXPECT_TRUE(samePicture(picture(), drawn(screen.shown()))) << k;
  }
  for (const double ratio : {1.5, 2.0, 1.0}) {
    ticks(c.Timer2, 25);
    screen.canvas().resize(screen.canvas().size(), ratio);
    ticks(c.Timer2, 1);
    EXPECT_TRUE(samePicture(picture(), drawn(screen.shown()))) << ratio;
  }
}

}  // namespace
}  // namespace lensbench
