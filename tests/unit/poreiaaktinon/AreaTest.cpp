// The named fractions of the drawing area, and the named point where a ray leaves it.
#include <gtest/gtest.h>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench::poreiaaktinon {
namespace {

class DrawingArea : public testing::Test {
 protected:
  DrawingArea() { canvas.Scale(-400.0, 200.0, 400.0, -200.0); }

  void expectLeaves(double x0, double y0, double dx, double dy, float x, float y) {
    const SinglePair p = orioothonis(canvas, x0, y0, dx, dy);
    EXPECT_FLOAT_EQ(p.x, x) << dx << ", " << dy;
    EXPECT_FLOAT_EQ(p.y, y) << dx << ", " << dy;
  }

  Recording canvas;
};

TEST_F(DrawingArea, FractionsRunFromTheLowerLeftCorner) {
  const SinglePair lowerLeft = klasmaothonis(canvas, -400, -200);
  EXPECT_EQ(lowerLeft.x, 0.0f);
  EXPECT_EQ(lowerLeft.y, 0.0f);
  const SinglePair upperRight = klasmaothonis(canvas, 400, 200);
  EXPECT_EQ(upperRight.x, 1.0f);
  EXPECT_EQ(upperRight.y, 1.0f);
  const SinglePair quarter = klasmaothonis(canvas, -200, 100);
  EXPECT_EQ(quarter.x, 0.25f);
  EXPECT_EQ(quarter.y, 0.75f);
}

TEST_F(DrawingArea, RayLeavesThroughTheNearerEdge) {
  expectLeaves(0, 0, 1, 0.1, 400.0f, 40.0f);
  expectLeaves(0, 0, 0.1, 1, 20.0f, 200.0f);
  expectLeaves(0, 0, 1, -0.1, 400.0f, -40.0f);
  expectLeaves(0, 0, 0.1, -1, 20.0f, -200.0f);
  expectLeaves(0, 0, -1, 0.1, -400.0f, 40.0f);
  expectLeaves(0, 0, -0.1, 1, -20.0f, 200.0f);
  expectLeaves(0, 0, -1, -0.1, -400.0f, -40.0f);
  expectLeaves(0, 0, -0.1, -1, -20.0f, -200.0f);
}

TEST_F(DrawingArea, RayAlongAnAxisLeavesStraight) {
  expectLeaves(10, 20, 0, 3, 10.0f, 200.0f);
  expectLeaves(10, 20, 0, -3, 10.0f, -200.0f);
  expectLeaves(10, 20, 3, 0, 400.0f, 20.0f);
  expectLeaves(10, 20, -3, 0, -400.0f, 20.0f);
}

TEST_F(DrawingArea, ZeroDirectionGivesTheOrigin) { expectLeaves(10, 20, 0, 0, 0.0f, 0.0f); }

TEST_F(DrawingArea, RayThroughACornerLeavesThere) {
  expectLeaves(0, 0, 2, 1, 400.0f, 200.0f);
  expectLeaves(0, 0, -2, -1, -400.0f, -200.0f);
}

TEST_F(DrawingArea, AStartOutsideIsNotTreatedSpecially) {
  expectLeaves(-1000, 50, 1, 0, 400.0f, 50.0f);
  expectLeaves(500, 0, 1, 0, 400.0f, 0.0f);  // behind the start
  expectLeaves(0, 300, 0, 1, 0.0f, 200.0f);
}

TEST_F(DrawingArea, APointTooFarForASingleIsOverflow) {
  EXPECT_EQ(errorNumber([&] { orioothonis(canvas, 0, 1e300, 1, 0); }), 6);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
