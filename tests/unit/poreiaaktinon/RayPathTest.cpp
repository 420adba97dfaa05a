// The path of one ray: pieces, faces, how it ends.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/RayPath.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

// Vertices at (-40, 0) and (40, 0), rim at (0, 80) and (0, -80).
constexpr Fakos symmetric{-60.0, 100.0, 60.0, 100.0};

OpticalSetup glass(double n = 1.5) { return {symmetric, n, std::nullopt, testEdges}; }

void expectPoint(Point p, double x, double y) {
  EXPECT_NEAR(p.x, x, 1e-12);
  EXPECT_NEAR(p.y, y, 1e-12);
}

TEST(TracePath, AxialRayGoesStraightThrough) {
  const RayPath path = tracePath(glass(), {-200.0, 0.0}, {5.0, 0.0}, 3.0);
  ASSERT_EQ(path.pieces, 3);
  expectPoint(path.points[1], -40.0, 0.0);
  expectPoint(path.points[2], 40.0, 0.0);
  expectPoint(path.end(), 400.0, 0.0);
  EXPECT_EQ(path.regions[0], Region::BeforeLens);
  EXPECT_EQ(path.regions[1], Region::Glass);
  EXPECT_EQ(path.regions[2], Region::BehindLens);
  EXPECT_EQ(path.faces, (FacesCrossed{Face::Left, Face::Right}));
  EXPECT_EQ(path.ending, Ending::Edge);
  EXPECT_EQ(path.n, 1.5);
  EXPECT_EQ(path.phase, 3.0);
  EXPECT_FALSE(path.missed());
}

TEST(TracePath, AxialRayThroughAVertexAtTheOriginCrossesTheGlass) {
  OpticalSetup setup = glass();
  setup.fakos = {0.0, 90.0, 100.0, 100.0};
  const RayPath path = tracePath(setup, {-50.0, 0.0}, {1.0, 0.0});
  ASSERT_EQ(path.pieces, 3);
  expectPoint(path.points[1], 0.0, 0.0);
  expectPoint(path.points[2], 90.0, 0.0);
}

TEST(TracePath, IsRefractedAtBothFaces) {
  const RayPath path = tracePath(glass(), {-200.0, 30.0}, {1.0, 0.0});
  ASSERT_EQ(path.pieces, 3);
  const double entryAngle = std::asin(0.3);
  const double inGlass = std::asin(0.3 / 1.5) - entryAngle;
  expectPoint(path.directions[1], std::cos(inGlass), std::sin(inGlass));
  const double exitNormal = std::asin(path.points[2].y / 100.0);
  const double out = exitNormal + std::asin(1.5 * std::sin(inGlass - exitNormal));
  expectPoint(path.directions[2], std::cos(out), std::sin(out));
}

TEST(TracePath, AnIndexOfZeroIsDivisionByZero) {
  EXPECT_EQ(errorNumber([] { tracePath(glass(0.0), {-200.0, 0.0}, {1.0, 0.0}); }), 11);
  EXPECT_EQ(errorNumber([] { tracePath(glass(0.0), {0.0, 0.0}, {1.0, 0.0}); }), 11);
}

TEST(TracePath, MissRunsToTheEdge) {
  const RayPath path = tracePath(glass(), {-200.0, 100.0}, {1.0, 0.0});
  ASSERT_EQ(path.pieces, 1);
  expectPoint(path.end(), 400.0, 100.0);
  EXPECT_TRUE(path.missed());
  EXPECT_EQ(path.faces, FacesCrossed{});
}

TEST(TracePath, IndexOneIsAStraightLine) {
  const RayPath path = tracePath(glass(1.0), {-200.0, 30.0}, {0.8, -0.1});
  ASSERT_EQ(path.pieces, 3);
  const Point d = unit({0.8, -0.1});
  for (const Point direction : path.directions) expectPoint(direction, d.x, d.y);
}

TEST(TracePath, SourceInTheGlassLeavesThroughTheFaceAhead) {
  const RayPath path = tracePath(glass(), {10.0, 0.0}, {1.0, 0.0});
  ASSERT_EQ(path.pieces, 2);
  EXPECT_EQ(path.regions[0], Region::Glass);
  EXPECT_EQ(path.regions[1], Region::BehindLens);
  EXPECT_EQ(path.faces, (FacesCrossed{Face::Right, Face::None}));
  expectPoint(path.points[1], 40.0, 0.0);
  EXPECT_FALSE(path.missed());
}

TEST(TracePath, TotalReflectionEndsAtTheFace) {
  // The incidence is 40.5 degrees, the critical angle 30.
  const RayPath path = tracePath(glass(2.0), {5.0, 0.0}, {0.0, 1.0});
  ASSERT_EQ(path.pieces, 1);
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_EQ(path.regions[0], Region::Glass);
  expectPoint(path.end(), 5.0, std::sqrt(100.0 * 100.0 - 65.0 * 65.0));
  EXPECT_EQ(path.faces, FacesCrossed{});
}

TEST(TracePath, ThinStuffMayReflectOnEntry) {
  const RayPath path = tracePath(glass(0.5), {-200.0, 70.0}, {1.0, 0.0});
  ASSERT_EQ(path.pieces, 1);
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_EQ(path.regions[0], Region::BeforeLens);
  EXPECT_FALSE(path.missed());
  EXPECT_EQ(tracePath(glass(0.5), {-200.0, 10.0}, {1.0, 0.0}).pieces, 3);
}

TEST(TracePath, DiaphragmStopsARayBeforeInAndBehindTheLens) {
  for (const double X : {-100.0, 0.0, 200.0}) {
    OpticalSetup setup = glass();
    setup.diafragma = Diafragma{X, -1.0, -2.0};
    const RayPath path = tracePath(setup, {-200.0, 0.0}, {1.0, 0.0});
    EXPECT_EQ(path.ending, Ending::Diaphragm);
    expectPoint(path.end(), X, 0.0);
    EXPECT_EQ(path.pieces, X < -40.0 ? 1 : X < 40.0 ? 2 : 3);
  }
}

TEST(TracePath, OpeningLetsThroughItsEndsIncluded) {
  OpticalSetup setup = glass(1.0);
  setup.diafragma = Diafragma{-100.0, 10.0, -10.0};
  for (const double y : {-10.0, 0.0, 10.0}) {
    EXPECT_EQ(tracePath(setup, {-200.0, y}, {1.0, 0.0}).ending, Ending::Edge);
  }
  EXPECT_EQ(tracePath(setup, {-200.0, 10.001}, {1.0, 0.0}).ending, Ending::Diaphragm);
}

TEST(TracePath, RayMovingAwayFromTheDiaphragmIsNotStopped) {
  OpticalSetup setup = glass();
  setup.diafragma = Diafragma{-100.0, 0.0, 0.0};
  EXPECT_EQ(tracePath(setup, {-90.0, 50.0}, {1.0, 0.0}).ending, Ending::Edge);
  EXPECT_EQ(tracePath(setup, {-110.0, 50.0}, {-1.0, 0.0}).ending, Ending::Edge);
  EXPECT_EQ(tracePath(setup, {-110.0, 50.0}, {0.0, 1.0}).ending, Ending::Edge);
}

TEST(TracePath, SourceOnABladeIsStoppedWhereItStands) {
  OpticalSetup setup = glass();
  setup.diafragma = Diafragma{-100.0, 0.0, 0.0};
  const RayPath path = tracePath(setup, {-100.0, 50.0}, {1.0, 0.0});
  EXPECT_EQ(path.ending, Ending::Diaphragm);
  expectPoint(path.end(), -100.0, 50.0);
}

TEST(TracePath, RayFromVeryFarCrossesTheArea) {
  for (const double far : {1e4, 1e8, 1e16, 1e18}) {
    const RayPath path = tracePath(glass(), {-far, 0.0}, {1.0, 0.0});
    ASSERT_EQ(path.pieces, 3) << far;
    expectPoint(path.points[1], -40.0, 0.0);
    expectPoint(path.end(), 400.0, 0.0);
    expectPoint(tracePath(glass(), {-far, 100.0}, {1.0, 0.0}).end(), 400.0, 100.0);
    const RayPath away = tracePath(glass(), {far, 100.0}, {1.0, 0.0});
    EXPECT_EQ(away.end().x, far);
  }
}

TEST(TracePath, ZeroDirectionIsDivisionByZero) {
  EXPECT_THROW(tracePath(glass(), {0.0, 0.0}, {0.0, 0.0}), RuntimeError);
}

TEST(SetupOf, ReadsTheWorkbench) {
  FakeWorkbench bench;
  bench.opening = {5.0, 6.0, 7.0};
  const OpticalSetup setup = setupOf(bench);
  EXPECT_EQ(setup.fakos.R2, 90.0);
  EXPECT_EQ(setup.n, 1.5);
  EXPECT_EQ(setup.diafragma->X, 5.0);
  EXPECT_EQ(setup.edges.right, 400.0);
  EXPECT_EQ(setup.edges.upper, 200.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
