// Lenses and actions at the edge of what the controls allow, judged by the picture.
#include <cmath>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class OddPicturesTest : public KelmoTest {
 protected:
  void setLens(int R1, int xc1, int R2, int xc2) {
    c.aktina1.Value(R1);
    c.kentrokykloy2.Value(xc1);
    c.aktina2.Value(R2);
    c.kentrokykloy.Value(xc2);
  }
  int glassPixels() {
    const QImage shown = picture();
    int found = 0;
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        found += shown.pixel(x, y) == qRgb(220, 220, 195) ? 1 : 0;
      }
    }
    return found;
  }
};

// Every radius of every bar is drawn: rounding at the border of the image must not leave it.
TEST_F(OddPicturesTest, EveryPlaceOfEveryLensBarIsDrawn) {
  for (ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.kentrokykloy2, &c.kentrokykloy}) {
    const int start = bar->Value();
    for (int value = bar->Min(); value <= bar->Max(); value += 3) bar->Value(value);
    bar->Value(start);
  }
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(OddPicturesTest, ALensBeyondTheDrawingAreaFillsNothing) {
  setLens(50, -500, 500, 20);  // from -480 to -450; the area ends at -400
  EXPECT_EQ(glassPixels(), 0);
}

TEST_F(OddPicturesTest, TheVisiblePartOfALensIsFilled) {
  setLens(500, -50, 500, 50);  // from -450 to 450
  EXPECT_EQ(pixelAt(100.0, 50.0), RGB(220, 220, 195));
}

TEST_F(OddPicturesTest, ALensOfWhichOnlyOneEndIsInSightIsFilledThere) {
  setLens(300, -500, 500, 290);  // from -210 to -200: all in sight
  EXPECT_EQ(pixelAt(-205.0, 5.0), RGB(220, 220, 195));
  setLens(150, -500, 500, 0);  // from -500 to -350; the area ends at -400
  EXPECT_EQ(pixelAt(-360.0, 5.0), RGB(220, 220, 195));
  EXPECT_EQ(pixelAt(-398.0, 5.0), RGB(220, 220, 195));
  setLens(500, 0, 150, 500);  // from 350 to 500
  EXPECT_EQ(pixelAt(360.0, 5.0), RGB(220, 220, 195));
  EXPECT_EQ(pixelAt(398.0, 5.0), RGB(220, 220, 195));
}

TEST_F(OddPicturesTest, CirclesThatOnlyTouchAreNoLens) {
  setLens(90, -50, 90, 130);
  EXPECT_EQ(glassPixels(), 0);
  EXPECT_EQ(pixelAt(-180.0, 0.0), white);  // no rim line on the axis
  setLens(100, -13, 50, 137);
  EXPECT_EQ(glassPixels(), 0);
}

TEST_F(OddPicturesTest, RimLinesInsideTheGlassAreNotEatenByTheFill) {
  setLens(50, 0, 500, 460);  // the right face is more than half a circle
  const double chord = (460.0 + (50.0 * 50.0 - 500.0 * 500.0) / 460.0) / 2.0;
  ASSERT_LT(chord, 0.0);
  EXPECT_EQ(pixelAt(20.0, std::sqrt(50.0 * 50.0 - chord * chord)), RGB(0, 255, 0));
}

TEST_F(OddPicturesTest, WithoutALensEveryShiftPressSendsAFan) {
  c.aktina1.Value(500);  // circle 2 lies inside circle 1
  press(-40.0, 60.0, Qt::ShiftModifier);
  release(-40.0, 60.0);
  EXPECT_EQ(screen.xpigi(), -40.0);
  EXPECT_EQ(screen.ypigi(), 60.0);
}

TEST_F(OddPicturesTest, AClickBesideAnEdgeKeepsTheRadius) {
  for (const double beside : {-5.0, -2.0, 2.0, 5.0}) {
    dragFromTo({50.0 + beside, 0.0}, {50.0 + beside, 0.0});
    EXPECT_EQ(c.aktina1.Value(), 100) << beside;
    dragFromTo({-70.0 + beside, 0.0}, {-70.0 + beside, 0.0});
    EXPECT_EQ(c.aktina2.Value(), 90) << beside;
  }
}

TEST_F(OddPicturesTest, TheEdgePreviewStopsWhereTheRadiusStops) {
  press(50.0, 0.0);
  drag(-45.0, 0.0);
  EXPECT_NEAR(c.draggedEdge.Width(), 100.0, 1e-9);
  release(-45.0, 0.0);
  EXPECT_EQ(c.aktina1.Value(), 50);
}

TEST_F(OddPicturesTest, AShiftFanEndsRunningWavesInTimeAndNothingIsRubbedOutOfIt) {
  openDiaphragm();
  c.kymatachronika.trigger();
  ASSERT_EQ(ticks(c.Timer1, 100), 100);
  press(-250.0, 60.0, Qt::ShiftModifier);
  release(-250.0, 60.0);
  const QImage fan = picture();
  EXPECT_FALSE(tick(c.Timer1));
  EXPECT_TRUE(samePicture(picture(), fan));
}

TEST_F(OddPicturesTest, AFanOfWavesOnlyPreparesOneStepWhateverRanBefore) {
  openDiaphragm();
  c.kymatachronika.trigger();
  ASSERT_EQ(ticks(c.Timer1, 100), 100);
  c.Check2.click();
  press(-250.0, 60.0, Qt::ShiftModifier);
  release(-250.0, 60.0);
  EXPECT_EQ(c.Timer1.Interval(), 1500);
  const QImage before = picture();
  ASSERT_TRUE(tick(c.Timer1));
  EXPECT_FALSE(samePicture(picture(), before));
  ASSERT_TRUE(tick(c.Timer1));
  EXPECT_EQ(c.Timer1.Interval(), 0);
}

TEST_F(OddPicturesTest, TheOneStepAfterABundleMendsNothingOfIt) {
  openDiaphragm();
  sendBundle("0");
  const QImage bundle = picture();
  ASSERT_TRUE(tick(c.Timer2));
  const QImage after = picture();
  int changed = 0;
  for (int y = 0; y < after.height(); ++y) {
    for (int x = 0; x < after.width(); ++x) {
      if (after.pixel(x, y) == bundle.pixel(x, y)) continue;
      ++changed;
      ASSERT_EQ(after.pixel(x, y), qRgb(255, 0, 0)) << x << ", " << y;
    }
  }
  EXPECT_GT(changed, 0);
}

TEST_F(OddPicturesTest, SlidersFollowTheBladesThroughAResize) {
  press(390.0, 190.0);  // the first input
  release(390.0, 190.0);
  c.HScroll1.Value(50);
  giveSize({1000, 600});
  const light::Edges area = edges();
  const double percent =
      (blades().X - (area.left + area.right) / 2.0) / ((area.right - area.left) / 2.0) * 100.0;
  EXPECT_NEAR(c.HScroll1.Value(), std::min(100.0, percent), 0.5);
}

TEST_F(OddPicturesTest, ASliderStopsABladeAtTheOther) {
  openDiaphragm();
  dragFromTo({blades().X, blades().yA}, {0.0, -80.0});
  c.VScroll2.Value(10);
  EXPECT_GE(blades().yA, blades().yB);
  EXPECT_EQ(c.Text3.Text(), "οπή διαφράγματος =0");
}

}  // namespace
}  // namespace lensbench
