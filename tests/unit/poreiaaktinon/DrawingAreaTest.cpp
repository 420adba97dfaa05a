// Fractions of the drawing area and the point where a ray leaves it.
#include <gtest/gtest.h>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/DrawingArea.h"

namespace lensbench::poreiaaktinon {
namespace {

class DrawingArea : public testing::Test {
 protected:
  DrawingArea() { canvas.Scale(-400.0, 200.0, 400.0, -200.0); }

  void expectLeaves(double x0, double y0, double dx, double dy, float x, float y) {
    const SinglePair p = orioothonis(canvas, x0, y0, dx, dy);
    EXPECT_FLOAT_EQ(p.x, x) << dx << ", " << dy;
    EXPECT_FLOAT_EQ(p.y, y) << dx << ", " << dy;
    if (dx == 0.0 && dy == 0.0) return;
    const Point q = leavingPoint(edgesOf(canvas), {x0, y0}, {dx, dy});
    EXPECT_NEAR(q.x, x, 1e-4);
    EXPECT_NEAR(q.y, y, 1e-4);
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

TEST_F(DrawingArea, RayFromOutsideIsCarriedAcross) {
  const Point across = leavingPoint(edgesOf(canvas), {-1e16, 50.0}, {1.0, 0.0});
  EXPECT_EQ(across.x, 400.0);
  EXPECT_EQ(across.y, 50.0);
}

TEST_F(DrawingArea, RayThatLeftTheAreaBehindStaysAtItsStart) {
  const Point past = leavingPoint(edgesOf(canvas), {500.0, 50.0}, {0.6, 0.8});
  EXPECT_EQ(past.x, 500.0);
  EXPECT_EQ(past.y, 50.0);
  const Point above = leavingPoint(edgesOf(canvas), {0.0, 300.0}, {0.6, 0.8});
  EXPECT_EQ(above.x, 0.0);
  EXPECT_EQ(above.y, 300.0);
}

TEST_F(DrawingArea, LowerEdgeIsTheSmallerYOnAnUnscaledCanvas) {
  const Recording twips(100.0, 50.0);
  const Edges edges = edgesOf(twips);
  EXPECT_EQ(edges.lower, 0.0);
  EXPECT_EQ(edges.upper, 750.0);
  EXPECT_EQ(edges.right, 1500.0);
}

TEST_F(DrawingArea, VisibleStretchIsWhatTheEdgesCut) {
  const Edges edges = edgesOf(canvas);
  const Stretch across = visibleStretch(edges, {-500.0, 0.0}, {1.0, 0.0}, {0.0, 2000.0});
  EXPECT_EQ(across.from, 100.0);
  EXPECT_EQ(across.to, 900.0);
  const Stretch missing = visibleStretch(edges, {-500.0, 201.0}, {1.0, 0.0}, {0.0, 2000.0});
  EXPECT_GT(missing.from, missing.to);
  const Stretch whole = visibleStretch(edges, {0.0, 0.0}, {0.6, 0.8}, {0.0, 7.0});
  EXPECT_EQ(whole.from, 0.0);
  EXPECT_EQ(whole.to, 7.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
