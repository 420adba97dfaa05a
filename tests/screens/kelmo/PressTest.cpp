// Presses on the drawing area: plain ones, those with Shift, and those with other buttons.
#include <algorithm>
#include <cmath>

#include <QTest>

#include "optics/poreiaaktinon/Numbers.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class PressTest : public KelmoTest {
 protected:
  // The present scene and over it, ray by ray, the fan of the present source.
  QImage sceneWithFan(bool rays, bool waves) {
    return drawn(sceneAlone(), [&](Canvas& canvas) {
      const double step = screen.vima() * poreiaaktinon::pi / 180.0;
      const int count = static_cast<int>(std::floor(360.0 / screen.vima()));
      for (int k = 0; k < count; ++k) {
        drawRay(canvas, screen.pigi(), {std::cos(k * step), std::sin(k * step)}, {rays, waves});
      }
    });
  }
  void expectPreparedForWavesInTime() {
    EXPECT_TRUE(c.kymatachronika.Checked());
    EXPECT_FALSE(c.parallilakymata.Checked());
    EXPECT_EQ(c.Timer2.Interval(), 1500);
    EXPECT_FALSE(c.Timer2.Enabled());
    EXPECT_EQ(c.Timer1.Interval(), 1500);
    EXPECT_TRUE(c.Timer1.Enabled());
  }
};

TEST_F(PressTest, OtherButtonsChangeNothingAtAll) {
  openDiaphragm();
  sendBundle("15");
  c.Check2.Value(true);
  const auto before = state();
  const QImage shown = picture();
  const Point places[] = {{0.0, 150.0},  {0.0, 0.0},   {-50.0, 0.0},  {20.0, 0.0},
                          {-150.0, 0.0}, {110.0, 0.0}, {300.0, 50.0}, {-20.0, 30.0}};
  for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
    for (const Qt::KeyboardModifier key : {Qt::NoModifier, Qt::ShiftModifier}) {
      for (const Point p : places) {
        press(p.x, p.y, key, button);
        drag(p.x + 20.0, p.y + 10.0);
        EXPECT_EQ(state(), before);
        release(p.x + 20.0, p.y + 10.0, button);
        ASSERT_EQ(state(), before) << "at " << p.x << ", " << p.y;
        ASSERT_TRUE(samePicture(picture(), shown)) << "at " << p.x << ", " << p.y;
      }
    }
  }
}

TEST_F(PressTest, APlainPressClearsDrawsAndChangesNothingElse) {
  shared.desmiMode = true;
  const auto before = state();
  for (const Point p : {Point{300.0, 50.0}, Point{-20.0, 30.0}}) {
    clutter();
    press(p.x, p.y);
    EXPECT_TRUE(showsSceneOnly());
    release(p.x, p.y);
    EXPECT_EQ(state(), before);
  }
}

TEST_F(PressTest, APlainPressLeavesTheSourceAndTheModeAlone) {
  shared.desmiMode = true;
  press(300.0, 50.0);
  release(300.0, 50.0);
  EXPECT_TRUE(shared.desmiMode);
  EXPECT_EQ(c.pigi.Left(), -200.0);
}

TEST_F(PressTest, ShiftOutsideTheLensMovesTheSourceAndStopsThePlaneWaves) {
  c.Timer2.Enabled(true);
  c.Timer2.Interval(1550);
  shared.desmiMode = true;
  press(-260.0, 70.0, Qt::ShiftModifier);
  EXPECT_FALSE(shared.desmiMode);
  EXPECT_EQ(c.Timer2.Interval(), 11500);
  EXPECT_FALSE(c.Timer2.Enabled());
  EXPECT_TRUE(c.Timer1.Enabled());
  EXPECT_EQ(c.Timer1.Interval(), 0);
  EXPECT_EQ(screen.xpigi(), -260.0);
  EXPECT_EQ(screen.ypigi(), 70.0);
  EXPECT_EQ(c.pigi.Left(), -260.0);
  EXPECT_EQ(c.pigi.Top(), 70.0);
  EXPECT_FALSE(c.kymatachronika.Checked());
  EXPECT_FALSE(c.parallilakymata.Checked());
  EXPECT_EQ(set().size(), 76U);
  release(-260.0, 70.0);
  EXPECT_EQ(c.Timer2.Interval(), 11500);
  EXPECT_EQ(c.Timer1.Interval(), 0);
}

TEST_F(PressTest, ShiftTogetherWithOtherKeysCountsAsShift) {
  double x = -260.0;
  for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
    x -= 10.0;
    press(x, 70.0, Qt::ShiftModifier | key);
    release(x, 70.0);
    EXPECT_EQ(screen.xpigi(), x);
    press(x + 100.0, 70.0, key);
    release(x + 100.0, 70.0);
    EXPECT_EQ(screen.xpigi(), x);
    EXPECT_TRUE(showsSceneOnly());
  }
}

TEST_F(PressTest, TheFanIsTheTextedNumberOfRaysAllAroundTheSource) {
  openDiaphragm();
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, false)));
  EXPECT_EQ(set().size(), 76U);
}

TEST_F(PressTest, TheFanIsStoppedByTheClosedDiaphragm) {
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, false)));
  const auto isStop = [](const light::RayPath& ray) {
    return ray.ending == light::Ending::Diaphragm;
  };
  const auto& rays = set();
  EXPECT_GT(std::count_if(rays.begin(), rays.end(), isStop), 10);
  ASSERT_FALSE(rays.empty());
  ASSERT_TRUE(isStop(rays[0]));
  EXPECT_EQ(pixelAt(rays[0].end().x, rays[0].end().y), RGB(255, 0, 255));
}

TEST_F(PressTest, TheSecondPressOfADoubleClickIsAPressLikeAnother) {
  openDiaphragm();
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage fan = picture();
  release(-260.0, 70.0);
  press(300.0, 50.0);
  release(300.0, 50.0);
  const QPoint pixel(280, 260);  // of (-260, 70)
  QTest::mouseDClick(screen.drawingArea(), Qt::LeftButton, Qt::ShiftModifier, pixel);
  EXPECT_TRUE(samePicture(picture(), fan));
  EXPECT_EQ(screen.xpigi(), -260.0);
}

TEST_F(PressTest, TheMarksChooseRaysAndWavesOfTheFan) {
  openDiaphragm();
  c.Check1.Value(true);
  press(-260.0, 70.0, Qt::ShiftModifier);
  QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, true)));
  release(-260.0, 70.0);
  c.Check1.Value(false);
  c.Check2.Value(true);
  press(-260.0, 70.0, Qt::ShiftModifier);
  shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithFan(false, true)));
}

TEST_F(PressTest, TheFanTakesTheIndexOfTheScrollBar) {
  openDiaphragm();
  c.deiktisdiathlasis.Value(220);
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage shown = picture();
  EXPECT_EQ(screen.n(), 2.2);
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, false)));
}

TEST_F(PressTest, ShiftInsideTheLensDrawsTheSceneAndItsCardinalPointsButNoRays) {
  shared.desmiMode = true;
  clutter();
  press(-20.0, 30.0, Qt::ShiftModifier);
  EXPECT_FALSE(shared.desmiMode);
  EXPECT_EQ(c.pigi.Left(), -200.0);
  EXPECT_TRUE(set().empty());
  EXPECT_EQ(c.Timer2.Interval(), 0);
  release(-20.0, 30.0);
  poreiaaktinon::Shown expected = sceneAlone();
  expected.layers.emplace_back(
      poreiaaktinon::CardinalMarks{screen.fakos(), screen.n(), screen.pigi()});
  EXPECT_EQ(screen.shown(), expected);
  EXPECT_TRUE(samePicture(picture(), drawn(expected)));
}

TEST_F(PressTest, ShiftOnSomethingGrabbableDragsIt) {
  press(20.0, 0.0, Qt::ShiftModifier);
  EXPECT_EQ(c.pigi.Left(), -200.0);
  drag(44.0, 0.0);
  EXPECT_TRUE(c.Shape2.Visible());
  release(44.0, 0.0);
  EXPECT_EQ(c.kentrokykloy.Value(), 44);
  // On the right edge, outside the lens.
  press(134.0, 0.0, Qt::ShiftModifier);
  EXPECT_EQ(c.pigi.Left(), -200.0);
  release(124.0, 0.0);
  EXPECT_EQ(c.aktina2.Value(), 80);
}

TEST_F(PressTest, WithOnlyWavesChosenShiftInsideTheLensPreparesTheWavesInTime) {
  c.Check2.Value(true);
  c.Timer2.Enabled(true);
  press(-20.0, 30.0, Qt::ShiftModifier);
  expectPreparedForWavesInTime();
}

TEST_F(PressTest, WithOnlyWavesChosenEveryReleasePreparesTheWavesInTime) {
  const auto unprepare = [this] {
    c.kymatachronika.Checked(false);
    c.parallilakymata.Checked(true);
    c.Timer1.Interval(0);
    c.Timer2.Interval(7);
    c.Timer2.Enabled(true);
  };
  unprepare();
  press(300.0, 50.0);
  release(300.0, 50.0);
  EXPECT_EQ(c.Timer1.Interval(), 0) << "not chosen yet";
  c.Check2.Value(true);
  for (const Point p : {Point{300.0, 50.0}, Point{-50.0, 0.0}, Point{0.0, 150.0}}) {
    unprepare();
    press(p.x, p.y);
    EXPECT_EQ(c.Timer1.Interval(), 0);
    release(p.x, p.y);
    expectPreparedForWavesInTime();
  }
}

TEST_F(PressTest, WithOnlyWavesChosenShiftOutsideStopsThePlaneWavesBeforeItPrepares) {
  c.Check2.Value(true);
  press(-260.0, 70.0, Qt::ShiftModifier);
  EXPECT_EQ(c.Timer2.Interval(), 11500);
  EXPECT_FALSE(c.kymatachronika.Checked());
  release(-260.0, 70.0);
  expectPreparedForWavesInTime();
}

TEST_F(PressTest, TheLargestFanWithWavesIsDrawnAndLeavesNoSet) {
  openDiaphragm();
  c.arvimaton.Value(5);
  c.desmi1.Value(150);
  c.Check1.Value(true);
  press(-260.0, 70.0, Qt::ShiftModifier);
  const QImage shown = picture();
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, true)));
  EXPECT_TRUE(set().empty()) << "3437 rays are too many to move";
}

TEST_F(PressTest, ASourceInTheGlassCannotBeSetButOneOnTheAxisCan) {
  openDiaphragm();
  press(-300.0, 0.0, Qt::ShiftModifier);
  const QImage shown = picture();
  EXPECT_EQ(screen.ypigi(), 0.0);
  EXPECT_TRUE(samePicture(shown, sceneWithFan(true, false)));
}

TEST_F(PressTest, ALensMovedOverTheSourceIsLeftThroughTheFaceAhead) {
  openDiaphragm();
  press(-260.0, 30.0, Qt::ShiftModifier);
  release(-260.0, 30.0);
  c.kentrokykloy2.Value(-300);
  c.aktina2.Value(320);  // the lens now reaches from -300 to -200
  ASSERT_TRUE(insideLens({-260.0, 30.0}, screen.fakos()));
  EXPECT_NO_THROW(c.kymatachronika.trigger());
  for (const auto& ray : set()) {
    EXPECT_EQ(ray.pieces[0].medium, light::Medium::Glass);
  }
}

}  // namespace
}  // namespace lensbench
