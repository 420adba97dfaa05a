// Where the fronts of moving waves stand.
#include <gtest/gtest.h>
#include <string>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

const Bench noLens{{-50.0, 100.0, 300.0, 90.0}, 1.5, {}};
const Bench lens{{-50.0, 100.0, 20.0, 90.0}, 1.5, {}};

TEST(FrontAt, OfAFanIsACircleAllAroundItsSource) {
  const Front front = frontAt(send(noLens, Fan{{10.0, 20.0}, 30.0}, testEdges), 50.0);
  ASSERT_EQ(front.points.size(), 12u);
  EXPECT_EQ(front.pieces.size(), 12u);  // the last ray is the neighbour of the first
  for (const Point& p : front.points) EXPECT_NEAR(length(p - Point{10.0, 20.0}), 50.0, 1e-12);
}

TEST(FrontAt, OfABundleIsAnOpenRow) {
  const Front front = frontAt(send(noLens, Desmi{0.0, 10}, testEdges), 50.0);
  ASSERT_EQ(front.points.size(), 11u);
  EXPECT_EQ(front.pieces.size(), 10u);
  for (const Point& p : front.points) EXPECT_NEAR(p.x, -150.0, 1e-12);
}

TEST(FrontAt, OfTwoRaysAllAroundIsJoinedOnce) {
  const Front front = frontAt(send(noLens, Fan{{10.0, 20.0}, 180.0}, testEdges), 50.0);
  EXPECT_EQ(front.points.size(), 2u);
  EXPECT_EQ(front.pieces.size(), 1u);
}

TEST(FrontAt, LeavesOutRaysThatItHasNotReachedOrThatHaveEnded) {
  const Sent fan = send(noLens, Fan{{0.0, 0.0}, 90.0}, testEdges);
  EXPECT_TRUE(frontAt(fan, -1.0).points.empty());
  // Up and down the edges are 200 away, to the sides 400.
  EXPECT_EQ(frontAt(fan, 199.0).points.size(), 4u);
  EXPECT_EQ(frontAt(fan, 201.0).points.size(), 2u);
  EXPECT_TRUE(frontAt(fan, 201.0).pieces.empty());
  EXPECT_TRUE(frontAt(fan, 401.0).points.empty());
}

TEST(FrontAt, JoinsOnlyNeighboursThatHaveCrossedTheSameFaces) {
  const Sent bundle = send(lens, Desmi{0.0, 40}, testEdges);
  const Front front = frontAt(bundle, 200.0);  // in the lens on the axis, beside it further out
  EXPECT_EQ(front.points.size(), 41u);
  EXPECT_LT(front.pieces.size(), 40u);
  for (const Front::Piece& piece : front.pieces) {
    EXPECT_LT(length(piece.to - piece.from), 40.0);
  }
}

TEST(RequireRoomFor, NamesTheNumberOfRaysAndTheLimit) {
  EXPECT_NO_THROW(requireRoomFor(1501));
  try {
    requireRoomFor(1502);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 9);
    EXPECT_NE(error.detail().find("1502"), std::string::npos);
    EXPECT_NE(error.detail().find("1501"), std::string::npos);
  }
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
