// The named searches for the next point of the lens.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr Boolean yes = -1;
constexpr Boolean no = 0;

// The search in a lens of two circles of radius 100 about (-60, 0) and (60, 0): vertices at
// (-40, 0) and (40, 0), rim at (0, 80) and (0, -80).
DiadromiApotelesma from(double px, double py, double dx, double dy, const Variant& tag = 7) {
  DiadromiApotelesma result;
  diadromiaktinas(result, -60, 60, 100, 100, dx, dy, px, py, tag);
  return result;
}

void expectFound(const DiadromiApotelesma& result, double x, double y) {
  EXPECT_EQ(result.found, yes);
  EXPECT_NEAR(result.x, x, 1e-12);
  EXPECT_NEAR(result.y, y, 1e-12);
  EXPECT_EQ(result.tag, 7);
}

void expectNotFound(const DiadromiApotelesma& result, double px, double py) {
  EXPECT_EQ(result.found, no);
  EXPECT_EQ(result.x, px);
  EXPECT_EQ(result.y, py);
}

TEST(Diadromiaktinas, RayFromTheLeftMeetsTheLeftFace) {
  expectFound(from(-500, 0, 1, 0), -40.0, 0.0);
  expectFound(from(-500, 60, 3, 0), 60.0 - 80.0, 60.0);
}

TEST(Diadromiaktinas, RayFromTheRightMeetsTheRightFace) {
  expectFound(from(500, 60, -1, 0), 20.0, 60.0);
}

TEST(Diadromiaktinas, RayFromInsideMeetsTheFaceAhead) {
  expectFound(from(3, 60, 1, 0), 20.0, 60.0);
  expectFound(from(3, 60, -1, 0), -20.0, 60.0);
}

TEST(Diadromiaktinas, RayFromInsideOneCircleOnlyMeetsTheLens) {
  expectFound(from(-100, 0, 1, 0), -40.0, 0.0);
  expectFound(from(100, 0, -1, 0), 40.0, 0.0);
}

TEST(Diadromiaktinas, RayPointingAwayDoesNotFindTheLens) {
  expectNotFound(from(-500, 0, -1, 0), -500.0, 0.0);
  expectNotFound(from(-100, 0, -1, 0), -100.0, 0.0);
  expectNotFound(from(500, 0, 1, 0), 500.0, 0.0);
}

TEST(Diadromiaktinas, RayOutsideTheRimMisses) {
  expectNotFound(from(-500, 81, 1, 0), -500.0, 81.0);
  EXPECT_EQ(from(-500, 79.9, 1, 0).found, yes);
}

TEST(Diadromiaktinas, TangentMisses) { expectNotFound(from(-500, 100, 1, 0), -500.0, 100.0); }

TEST(Diadromiaktinas, VerticalRayIsTreatedLikeAnyOther) {
  const double h = std::sqrt(100.0 * 100.0 - 70.0 * 70.0);
  expectFound(from(10, -300, 0, 1), 10.0, -h);
  expectFound(from(10, 300, 0, -5), 10.0, h);
  expectNotFound(from(10, 300, 0, 1), 10.0, 300.0);
}

TEST(Diadromiaktinas, StartOnAFaceDoesNotFindItselfAgain) {
  for (const double off : {-0.049, 0.0, 0.049}) {
    expectFound(from(-40 + off, 0, 1, 0), 40.0, 0.0);
    expectNotFound(from(-40 + off, 0, -1, 0), -40.0 + off, 0.0);
  }
  expectFound(from(-40.051, 0, 1, 0), -40.0, 0.0);
  expectFound(from(-39.949, 0, -1, 0), -40.0, 0.0);
}

TEST(Diadromiaktinas, StartOnACircleAwayFromTheLensIsNoStartOnAFace) {
  expectFound(from(-160, 0, 1, 0), -40.0, 0.0);
  expectNotFound(from(-160, 0, -1, 0), -160.0, 0.0);
}

TEST(Diadromiaktinas, TheOriginCountsAsNotFound) {
  // The left vertex of this lens is the origin.
  DiadromiApotelesma result;
  diadromiaktinas(result, 0, 100, 90, 100, 1, 0, -50, 0, 7);
  expectNotFound(result, -50.0, 0.0);
  EXPECT_EQ(result.tag, 7);
}

TEST(Diadromiaktinas, WithoutALensTheTagStaysZero) {
  for (const double xc2 : {-60.0, 500.0}) {  // coincident centres, and circles apart
    DiadromiApotelesma result;
    diadromiaktinas(result, -60, xc2, 100, 100, 1, 0, -500, 3, 7);
    expectNotFound(result, -500.0, 3.0);
    EXPECT_EQ(result.tag, 0);
  }
}

TEST(Diadromiaktinas, CircleInsideTheOtherIsNoLens) {
  DiadromiApotelesma result;
  diadromiaktinas(result, 0, 20, 200, 50, 1, 0, -500, 0, 7);
  expectNotFound(result, -500.0, 0.0);
}

TEST(Diadromiaktinas, ZeroRadiusIsNotFound) {
  DiadromiApotelesma result;
  diadromiaktinas(result, -50, 50, 100, 0, 1, 0, -500, 0, 7);
  expectNotFound(result, -500.0, 0.0);
}

TEST(Diadromiaktinas, TagIsRoundedToSixteenBits) {
  EXPECT_EQ(from(-500, 0, 1, 0, 2.5).tag, 2);
  EXPECT_EQ(from(-500, 0, 1, 0, -32768).tag, -32768);
  EXPECT_EQ(from(-500, 0, -1, 0, 9).tag, 9);
  EXPECT_THROW(from(-500, 0, 1, 0, 40000), RuntimeError);
}

TEST(Diadromiaktinas, StartVeryFarAwayFindsTheFace) {
  expectFound(from(-1e16, 0, 1, 0), -40.0, 0.0);
  expectFound(from(-1e18, 60, 1, 0), -20.0, 60.0);
}

TEST(Diadromiaktinas, StartVeryFarAwayFindsAThinLens) {
  DiadromiApotelesma result;
  diadromiaktinas(result, -99, 99, 100, 100, 1, 0, -1e18, 0, 7);
  expectFound(result, -1.0, 0.0);
}

TEST(Diadromiaktinas, SetsTheWorkbenchPenOnlyWhereTheLineMeetsBothCircles) {
  FakeWorkbench bench;
  bench.surface.DrawWidth(9);
  from(-500, 150, 1, 0);
  EXPECT_EQ(bench.surface.DrawWidth(), 9);
  from(-500, 0, -1, 0);
  EXPECT_EQ(bench.surface.DrawWidth(), 1);
}

TEST(Diadromiaktinas, LeavesThePenAloneWithoutALens) {
  FakeWorkbench bench;
  bench.surface.DrawWidth(9);
  DiadromiApotelesma result;
  // Circles apart, coincident, and one within the other; each line below meets both of them.
  diadromiaktinas(result, -60, 500, 100, 100, 1, 0, -500, 3, 7);
  diadromiaktinas(result, -60, -60, 100, 100, 1, 0, -500, 3, 7);
  diadromiaktinas(result, 0, 20, 200, 50, 1, 0, -500, 0, 7);
  EXPECT_EQ(bench.surface.DrawWidth(), 9);
}

TEST(Diadromiaktinas, StartOnTheRightFaceDoesNotFindItselfAgain) {
  for (const double off : {-0.049, 0.0, 0.049}) {
    expectFound(from(40 + off, 0, -1, 0), -40.0, 0.0);
    expectNotFound(from(40 + off, 0, 1, 0), 40.0 + off, 0.0);
  }
  expectFound(from(40.051, 0, -1, 0), 40.0, 0.0);
  expectFound(from(39.949, 0, 1, 0), 40.0, 0.0);
  // Along the tangent it has left the lens, although its line has a chord.
  expectNotFound(from(39.99, 0, 0, 1), 39.99, 0.0);
  expectNotFound(from(-39.99, 0, 0, 1), -39.99, 0.0);
}

TEST(Diadromiaktinas, NeedsNoWorkbench) {
  connectWorkbench({});
  expectFound(from(-500, 0, 1, 0), -40.0, 0.0);
}

TEST(Diadromiaktinas2, IsTheSameSearchWithoutATag) {
  FakeWorkbench bench;
  bench.surface.DrawWidth(9);
  DiadromiApotelesma result;
  diadromiaktinas2(result, -60, 60, 100, 100, 1, 0, -500, 60);
  EXPECT_EQ(result.found, yes);
  EXPECT_NEAR(result.x, -20.0, 1e-12);
  EXPECT_EQ(result.tag, 0);
  EXPECT_EQ(bench.surface.DrawWidth(), 9);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
