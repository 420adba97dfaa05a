// Drags of the centres and the edges of the two circles on the real form.
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class CircleDragTest : public KelmoTest {
 protected:
  void expectNoPreview() {
    EXPECT_FALSE(c.Shape1.Visible());
    EXPECT_FALSE(c.Shape2.Visible());
    EXPECT_FALSE(c.draggedEdge.Visible());
  }
};

TEST_F(CircleDragTest, TheLeftCentreGoesToTheNearestWholeNumberLeftOfTheOrigin) {
  dragFromTo({-50.0, 0.0}, {-83.25, 40.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), -83);
  EXPECT_EQ(screen.xc1(), -83.0);
  EXPECT_TRUE(showsSceneOnly());
  dragFromTo({-83.0, 0.0}, {-30.5, 0.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), -30);
  dragFromTo({-30.0, 0.0}, {-31.5, 0.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), -32);
  dragFromTo({-32.0, 0.0}, {30.0, 0.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), 0);
  EXPECT_EQ(c.kentrokykloy.Value(), 20);
}

TEST_F(CircleDragTest, TheRightCentreGoesToTheNearestWholeNumberRightOfTheOrigin) {
  dragFromTo({20.0, 0.0}, {30.5, -40.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 30);
  EXPECT_EQ(c.Text7.Text(), "Κέντρο δεξί κύκλου=30");
  EXPECT_TRUE(showsSceneOnly());
  dragFromTo({30.0, 0.0}, {31.5, 0.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 32);
  dragFromTo({32.0, 0.0}, {-30.0, 0.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 0);
  EXPECT_EQ(c.kentrokykloy2.Value(), -50);
}

TEST_F(CircleDragTest, EitherCentreReleasedOnTheOriginStandsThere) {
  c.HScroll1.Value(50);  // the diaphragm out of the way
  dragFromTo({-50.0, 0.0}, {0.0, 0.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), 0);
  dragFromTo({20.0, 0.0}, {0.0, 0.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 0);
  // Both stand on the origin now, and each can be taken away again.
  dragFromTo({-2.0, 0.0}, {-40.0, 0.0});
  EXPECT_EQ(c.kentrokykloy2.Value(), -40);
  dragFromTo({2.0, 0.0}, {25.0, 0.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 25);
}

TEST_F(CircleDragTest, ACentreReleasedBeyondItsRangeStandsAtItsEnd) {
  dragFromTo({-50.0, 0.0}, {-720.0, 0.0});  // the mouse may leave the window while it drags
  EXPECT_EQ(c.kentrokykloy2.Value(), -500);
  dragFromTo({20.0, 0.0}, {720.0, 0.0});
  EXPECT_EQ(c.kentrokykloy.Value(), 500);
}

TEST_F(CircleDragTest, TheMarkerOfTheDraggedCentreIsCentredOnTheMouseAndGoneAfterwards) {
  press(-50.0, 0.0);
  expectNoPreview();
  drag(-60.0, 12.5);
  EXPECT_TRUE(c.Shape1.Visible());
  EXPECT_NEAR(centreOf(c.Shape1).x, -60.0, 1e-9);
  EXPECT_NEAR(centreOf(c.Shape1).y, 12.5, 1e-9);
  EXPECT_FALSE(c.Shape2.Visible());
  drag(33.0, -7.0);
  EXPECT_NEAR(centreOf(c.Shape1).x, 33.0, 1e-9);
  EXPECT_NEAR(centreOf(c.Shape1).y, -7.0, 1e-9);
  release(-70.0, 0.0);
  expectNoPreview();

  press(20.0, 0.0);
  drag(48.0, -12.5);
  EXPECT_TRUE(c.Shape2.Visible());
  EXPECT_NEAR(centreOf(c.Shape2).x, 48.0, 1e-9);
  EXPECT_NEAR(centreOf(c.Shape2).y, -12.5, 1e-9);
  EXPECT_FALSE(c.Shape1.Visible());
  release(48.0, 0.0);
  expectNoPreview();
}

TEST_F(CircleDragTest, AMoveWithoutAPressShowsNothing) {
  const auto before = state();
  drag(-50.0, 0.0);
  EXPECT_EQ(state(), before);
}

TEST_F(CircleDragTest, TheRightEdgeSetsTheRightRadiusOnEitherSideOfItsCentre) {
  dragFromTo({110.0, 0.0}, {150.5, 60.0});
  EXPECT_EQ(c.aktina2.Value(), 130);
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα2 =130");
  EXPECT_TRUE(showsSceneOnly());
  dragFromTo({-110.0, 0.0}, {-75.0, 0.0});
  EXPECT_EQ(c.aktina2.Value(), 95);
  dragFromTo({115.0, 0.0}, {-75.0, 0.0});
  EXPECT_EQ(c.aktina2.Value(), 95) << "the distance counts, not the side";
  EXPECT_EQ(c.aktina1.Value(), 100);
}

TEST_F(CircleDragTest, TheLeftEdgeSetsTheLeftRadius) {
  dragFromTo({50.0, 0.0}, {75.75, 0.0});
  EXPECT_EQ(c.aktina1.Value(), 125);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1 =125");
  EXPECT_TRUE(showsSceneOnly());
  dragFromTo({-175.0, 0.0}, {-130.0, 10.0});
  EXPECT_EQ(c.aktina1.Value(), 80);
}

TEST_F(CircleDragTest, RadiiAreClampedToTheirScrollBars) {
  dragFromTo({50.0, 0.0}, {-20.0, 0.0});
  EXPECT_EQ(c.aktina1.Value(), 50);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1 =50");
  dragFromTo({0.0 - 100.0, 0.0}, {-600.0, 0.0});
  EXPECT_EQ(c.aktina1.Value(), 500);
  c.HScroll1.Value(50);
  dragFromTo({110.0, 0.0}, {20.0, 0.0});
  EXPECT_EQ(c.aktina2.Value(), 0);
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα2 =0");
  c.aktina2.Value(90);
  dragFromTo({110.0, 0.0}, {700.0, 0.0});
  EXPECT_EQ(c.aktina2.Value(), 500);
}

TEST_F(CircleDragTest, AnEdgeReleasedWhereItWasPressedKeepsItsRadius) {
  dragFromTo({110.0, 0.0}, {110.0, 0.0});
  EXPECT_EQ(c.aktina2.Value(), 90);
  dragFromTo({-150.0, 0.0}, {-150.0, 0.0});
  EXPECT_EQ(c.aktina1.Value(), 100);
}

TEST_F(CircleDragTest, TheDraggedEdgeIsSeenAsADottedCircleThroughTheMouse) {
  press(110.0, 0.0);
  expectNoPreview();
  drag(140.0, 15.0);
  EXPECT_TRUE(c.draggedEdge.Visible());
  EXPECT_EQ(c.draggedEdge.BorderStyle(), BorderStyle::Dotted);
  EXPECT_EQ(c.draggedEdge.FillStyle(), FillStyle::Transparent);
  EXPECT_NEAR(centreOf(c.draggedEdge).x, 20.0, 1e-9);
  EXPECT_NEAR(centreOf(c.draggedEdge).y, 0.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Width(), 240.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Height(), 240.0, 1e-9);
  EXPECT_EQ(c.aktina2.Value(), 90) << "until the release";
  release(140.0, 15.0);
  expectNoPreview();
  EXPECT_EQ(c.aktina2.Value(), 120);
}

TEST_F(CircleDragTest, AnEdgeTakenFromBesideItFollowsTheMouseByThatDistance) {
  press(106.0, 5.0);
  drag(106.5, 5.0);
  EXPECT_NEAR(c.draggedEdge.Width(), 180.0, 1e-9) << "no jump";
  drag(136.0, 5.0);
  EXPECT_NEAR(c.draggedEdge.Left(), 20.0 - 120.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Top(), 120.0, 1e-9);
  release(136.0, 5.0);
  EXPECT_EQ(c.aktina2.Value(), 120);
}

TEST_F(CircleDragTest, TheHighestPlaceOfADraggedEdgeIsTheLargestRadius) {
  press(110.0, 0.0);
  drag(900.0, 0.0);
  EXPECT_NEAR(c.draggedEdge.Top(), 500.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Left(), -480.0, 1e-9);
  EXPECT_NEAR(c.draggedEdge.Height(), 1000.0, 1e-9);
  release(900.0, 0.0);
  EXPECT_EQ(c.aktina2.Value(), 500);
}

TEST_F(CircleDragTest, ASmallCircleIsEnlargedAndMoved) {
  c.HScroll1.Value(50);
  for (const int radius : {0, 1, 3}) {
    c.aktina2.Value(radius);
    dragFromTo({25.0, 0.0}, {65.0, 0.0});
    EXPECT_EQ(c.aktina2.Value(), radius + 40);
    c.aktina2.Value(radius);
    dragFromTo({20.0, 0.0}, {30.0, 0.0});
    EXPECT_EQ(c.kentrokykloy.Value(), 30);
    c.kentrokykloy.Value(20);
  }
}

TEST_F(CircleDragTest, AReleaseThatChangesNoValueClearsAndDrawsAllTheSame) {
  const Point grips[] = {{-50.0, 0.0}, {20.0, 0.0}, {110.0, 0.0}, {-150.0, 0.0}};
  for (const Point grip : grips) {
    press(grip.x, grip.y);
    clutter();
    release(grip.x, grip.y);
    EXPECT_TRUE(showsSceneOnly()) << grip.x;
  }
}

TEST_F(CircleDragTest, AnotherButtonPressedDuringADragDoesNotEndIt) {
  press(20.0, 0.0);
  press(100.0, 50.0, Qt::NoModifier, Qt::RightButton);
  release(100.0, 50.0, Qt::RightButton);
  EXPECT_EQ(c.kentrokykloy.Value(), 20);
  release(60.0, 0.0);
  EXPECT_EQ(c.kentrokykloy.Value(), 60);
}

TEST_F(CircleDragTest, ASecondReleaseDoesNotRepeatTheFirst) {
  dragFromTo({20.0, 0.0}, {60.0, 0.0});
  release(90.0, 0.0);
  EXPECT_EQ(c.kentrokykloy.Value(), 60);
}

}  // namespace
}  // namespace lensbench
