// The edges of a drawing area and the point where a ray leaves it.
#include <gtest/gtest.h>

#include "canvas/Recording.h"
#include "optics/light/Edges.h"

namespace lensbench::light {
namespace {

class AnArea : public testing::Test {
 protected:
  AnArea() { canvas.Scale(-400.0, 200.0, 400.0, -200.0); }

  void expectLeaves(double x0, double y0, double dx, double dy, double x, double y) {
    const Point p = leavingPoint(edgesOf(canvas), {x0, y0}, {dx, dy});
    EXPECT_NEAR(p.x, x, 1e-12) << dx << ", " << dy;
    EXPECT_NEAR(p.y, y, 1e-12) << dx << ", " << dy;
  }

  Recording canvas;
};

TEST_F(AnArea, RayLeavesThroughTheNearerEdge) {
  expectLeaves(0, 0, 1, 0.1, 400.0, 40.0);
  expectLeaves(0, 0, 0.1, 1, 20.0, 200.0);
  expectLeaves(0, 0, 1, -0.1, 400.0, -40.0);
  expectLeaves(0, 0, 0.1, -1, 20.0, -200.0);
  expectLeaves(0, 0, -1, 0.1, -400.0, 40.0);
  expectLeaves(0, 0, -0.1, 1, -20.0, 200.0);
  expectLeaves(0, 0, -1, -0.1, -400.0, -40.0);
  expectLeaves(0, 0, -0.1, -1, -20.0, -200.0);
}

TEST_F(AnArea, RayAlongAnAxisLeavesStraight) {
  expectLeaves(10, 20, 0, 3, 10.0, 200.0);
  expectLeaves(10, 20, 0, -3, 10.0, -200.0);
  expectLeaves(10, 20, 3, 0, 400.0, 20.0);
  expectLeaves(10, 20, -3, 0, -400.0, 20.0);
}

TEST_F(AnArea, RayThroughACornerLeavesThere) {
  expectLeaves(0, 0, 2, 1, 400.0, 200.0);
  expectLeaves(0, 0, -2, -1, -400.0, -200.0);
}

TEST_F(AnArea, RayFromOutsideIsCarriedAcross) {
  const Point across = leavingPoint(edgesOf(canvas), {-1e16, 50.0}, {1.0, 0.0});
  EXPECT_EQ(across.x, 400.0);
  EXPECT_EQ(across.y, 50.0);
}

TEST_F(AnArea, RayThatLeftTheAreaBehindStaysAtItsStart) {
  const Point past = leavingPoint(edgesOf(canvas), {500.0, 50.0}, {0.6, 0.8});
  EXPECT_EQ(past.x, 500.0);
  EXPECT_EQ(past.y, 50.0);
  const Point above = leavingPoint(edgesOf(canvas), {0.0, 300.0}, {0.6, 0.8});
  EXPECT_EQ(above.x, 0.0);
  EXPECT_EQ(above.y, 300.0);
}

TEST_F(AnArea, LowerEdgeIsTheSmallerYOnAnUnscaledCanvas) {
  const Recording twips(100.0, 50.0);
  const Edges edges = edgesOf(twips);
  EXPECT_EQ(edges.lower, 0.0);
  EXPECT_EQ(edges.upper, 750.0);
  EXPECT_EQ(edges.right, 1500.0);
}

TEST_F(AnArea, NearerEdgeMayLieBehindTheStart) {
  const EdgeAhead behind = nearerEdge(edgesOf(canvas), {500.0, 50.0}, {0.6, 0.8});
  EXPECT_EQ(behind.point.x, 400.0);
  EXPECT_LT(behind.distance, 0.0);
}

TEST_F(AnArea, MovedOutGrowsAllAround) {
  EXPECT_EQ(movedOut(edgesOf(canvas), 3.0), (Edges{-403.0, 403.0, -203.0, 203.0}));
}

TEST_F(AnArea, VisibleStretchIsWhatTheEdgesCut) {
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
}  // namespace lensbench::light
