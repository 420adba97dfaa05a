// The path of one ray: pieces, faces, how it ends.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Rays.h"
#include "tests/support/ErrorNumber.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::Ending;
using light::Medium;
using light::RayPath;
using light::Side;

// Vertices at (-40, 0) and (40, 0), rim at (0, 80) and (0, -80).
constexpr Fakos symmetric{-60.0, 100.0, 60.0, 100.0};

Bench glass(double n = 1.5) { return {symmetric, n, std::nullopt}; }

void expectPoint(Point p, double x, double y) {
  EXPECT_NEAR(p.x, x, 1e-12);
  EXPECT_NEAR(p.y, y, 1e-12);
}

TEST(TracePath, AxialRayGoesStraightThrough) {
  const RayPath path = tracePath(glass(), {-200.0, 0.0}, {5.0, 0.0});
  ASSERT_EQ(path.count, 3);
  expectPoint(path.pieces[0].to, -40.0, 0.0);
  expectPoint(path.pieces[1].to, 40.0, 0.0);
  expectPoint(path.end(), 400.0, 0.0);
  EXPECT_EQ(path.pieces[0].medium, Medium::Air);
  EXPECT_EQ(path.pieces[1].medium, Medium::Glass);
  EXPECT_EQ(path.pieces[2].medium, Medium::Air);
  EXPECT_EQ(path.meetings[0].face, Side::Left);
  EXPECT_EQ(path.meetings[1].face, Side::Right);
  EXPECT_EQ(path.ending, Ending::Open);
  EXPECT_EQ(path.n, 1.5);
  EXPECT_EQ(path.phase, 0.0);
  EXPECT_FALSE(path.missed());
}

TEST(TracePath, AxialRayThroughAVertexAtTheOriginCrossesTheGlass) {
  Bench setup = glass();
  setup.fakos = {0.0, 90.0, 100.0, 100.0};
  const RayPath path = tracePath(setup, {-50.0, 0.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 3);
  expectPoint(path.pieces[0].to, 0.0, 0.0);
  expectPoint(path.pieces[1].to, 90.0, 0.0);
}

TEST(TracePath, IsRefractedAtBothFaces) {
  const RayPath path = tracePath(glass(), {-200.0, 30.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 3);
  const double entryAngle = std::asin(0.3);
  const double inGlass = std::asin(0.3 / 1.5) - entryAngle;
  expectPoint(path.pieces[1].direction, std::cos(inGlass), std::sin(inGlass));
  const double exitNormal = std::asin(path.pieces[1].to.y / 100.0);
  const double out = exitNormal + std::asin(1.5 * std::sin(inGlass - exitNormal));
  expectPoint(path.pieces[2].direction, std::cos(out), std::sin(out));
}

TEST(TracePath, AnIndexOfZeroIsDivisionByZero) {
  EXPECT_EQ(errorNumber([] { tracePath(glass(0.0), {-200.0, 0.0}, {1.0, 0.0}); }), 11);
  EXPECT_EQ(errorNumber([] { tracePath(glass(0.0), {0.0, 0.0}, {1.0, 0.0}); }), 11);
}

TEST(TracePath, MissRunsToTheEdge) {
  const RayPath path = tracePath(glass(), {-200.0, 100.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 1);
  expectPoint(path.end(), 400.0, 100.0);
  EXPECT_TRUE(path.missed());
  EXPECT_EQ(path.meetings[0].face, Side::None);
}

TEST(TracePath, IndexOneIsAStraightLine) {
  const RayPath path = tracePath(glass(1.0), {-200.0, 30.0}, {0.8, -0.1});
  ASSERT_EQ(path.count, 3);
  const Point d = unit({0.8, -0.1});
  for (const auto& piece : path.way()) expectPoint(piece.direction, d.x, d.y);
}

TEST(TracePath, SourceInTheGlassLeavesThroughTheFaceAhead) {
  const RayPath path = tracePath(glass(), {10.0, 0.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 2);
  EXPECT_EQ(path.pieces[0].medium, Medium::Glass);
  EXPECT_EQ(path.pieces[1].medium, Medium::Air);
  EXPECT_EQ(path.meetings[0].face, Side::Right);
  EXPECT_EQ(path.meetings[1].face, Side::None);
  expectPoint(path.pieces[0].to, 40.0, 0.0);
  EXPECT_FALSE(path.missed());
}

TEST(TracePath, TotalReflectionEndsAtTheFace) {
  // The incidence is 40.5 degrees, the critical angle 30.
  const RayPath path = tracePath(glass(2.0), {5.0, 0.0}, {0.0, 1.0});
  ASSERT_EQ(path.count, 1);
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_EQ(path.pieces[0].medium, Medium::Glass);
  expectPoint(path.end(), 5.0, std::sqrt(100.0 * 100.0 - 65.0 * 65.0));
  EXPECT_EQ(path.meetings[0].face, Side::Right);
}

TEST(TracePath, ThinStuffMayReflectOnEntry) {
  const RayPath path = tracePath(glass(0.5), {-200.0, 70.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 1);
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_EQ(path.pieces[0].medium, Medium::Air);
  EXPECT_FALSE(path.missed());
  EXPECT_EQ(tracePath(glass(0.5), {-200.0, 10.0}, {1.0, 0.0}).count, 3);
}

TEST(TracePath, DiaphragmStopsARayBeforeInAndBehindTheLens) {
  for (const double X : {-100.0, 0.0, 200.0}) {
    Bench setup = glass();
    setup.diafragma = Diafragma{X, -1.0, -2.0};
    const RayPath path = tracePath(setup, {-200.0, 0.0}, {1.0, 0.0});
    EXPECT_EQ(path.ending, Ending::Diaphragm);
    expectPoint(path.end(), X, 0.0);
    EXPECT_EQ(path.count, X < -40.0 ? 1 : X < 40.0 ? 2 : 3);
  }
}

TEST(TracePath, OpeningLetsThroughItsEndsIncluded) {
  Bench setup = glass(1.0);
  setup.diafragma = Diafragma{-100.0, 10.0, -10.0};
  for (const double y : {-10.0, 0.0, 10.0}) {
    EXPECT_EQ(tracePath(setup, {-200.0, y}, {1.0, 0.0}).ending, Ending::Open);
  }
  EXPECT_EQ(tracePath(setup, {-200.0, 10.001}, {1.0, 0.0}).ending, Ending::Diaphragm);
}

TEST(TracePath, RayMovingAwayFromTheDiaphragmIsNotStopped) {
  Bench setup = glass();
  setup.diafragma = Diafragma{-100.0, 0.0, 0.0};
  EXPECT_EQ(tracePath(setup, {-90.0, 50.0}, {1.0, 0.0}).ending, Ending::Open);
  EXPECT_EQ(tracePath(setup, {-110.0, 50.0}, {-1.0, 0.0}).ending, Ending::Open);
  EXPECT_EQ(tracePath(setup, {-110.0, 50.0}, {0.0, 1.0}).ending, Ending::Open);
}

TEST(TracePath, SourceOnABladeIsStoppedWhereItStands) {
  Bench setup = glass();
  setup.diafragma = Diafragma{-100.0, 0.0, 0.0};
  const RayPath path = tracePath(setup, {-100.0, 50.0}, {1.0, 0.0});
  EXPECT_EQ(path.ending, Ending::Diaphragm);
  expectPoint(path.end(), -100.0, 50.0);
}

TEST(TracePath, RayFromVeryFarCrossesTheArea) {
  for (const double far : {1e4, 1e8, 1e16, 1e18}) {
    const RayPath path = tracePath(glass(), {-far, 0.0}, {1.0, 0.0});
    ASSERT_EQ(path.count, 3) << far;
    expectPoint(path.pieces[0].to, -40.0, 0.0);
    expectPoint(path.end(), 400.0, 0.0);
    expectPoint(tracePath(glass(), {-far, 100.0}, {1.0, 0.0}).end(), 400.0, 100.0);
    const RayPath away = tracePath(glass(), {far, 100.0}, {1.0, 0.0});
    EXPECT_EQ(away.end().x, far);
  }
}

TEST(TracePath, ZeroDirectionIsDivisionByZero) {
  EXPECT_THROW(tracePath(glass(), {0.0, 0.0}, {0.0, 0.0}), RuntimeError);
}

TEST(TracePath, NestedCirclesAreNoLens) {
  // A circle within the other encloses no glass with it: every ray runs past.
  for (const Fakos& nested : {Fakos{0.0, 200.0, 20.0, 50.0}, Fakos{-20.0, 50.0, 0.0, 200.0},
                              Fakos{0.0, 100.0, 0.0, 100.0}}) {
    const Bench bench{nested, 1.5, std::nullopt};
    for (const double y : {0.0, 10.0, -40.0}) {
      const RayPath path = tracePath(bench, {-300.0, y}, {1.0, 0.0});
      EXPECT_TRUE(path.missed());
      expectPoint(path.end(), 400.0, y);
    }
    EXPECT_EQ(tracePath(bench, {0.0, 0.0}, {1.0, 0.2}).pieces[0].medium, Medium::Air);
  }
}

TEST(TracePath, ABallIsEnteredAndLeftByTheSameFace) {
  const Bench ball{{-450.0, 500.0, 0.0, 50.0}, 1.5, {}};  // circle 2 touches circle 1 from inside
  const RayPath path = tracePath(ball, {-300.0, 10.0}, {1.0, 0.0});
  ASSERT_EQ(path.count, 3);
  EXPECT_EQ(path.meetings[0].face, Side::Left);
  EXPECT_EQ(path.meetings[1].face, Side::Left);
}

TEST(TracePath, MeetingsSayTheNormalOutOfTheGlass) {
  const RayPath path = tracePath(glass(1.0), {-300.0, 60.0}, {1.0, 0.0});
  EXPECT_NEAR(path.meetings[0].normal.x, -0.8, 1e-15);
  EXPECT_NEAR(path.meetings[0].normal.y, 0.6, 1e-15);
  EXPECT_NEAR(path.meetings[1].normal.x, 0.8, 1e-14);
  EXPECT_NEAR(path.meetings[1].normal.y, 0.6, 1e-14);
}

// A start within 0.0005 of a radius of a face stands on it, here within 0.05.
TEST(TracePath, AStartOnEitherFaceIsInTheGlassAlreadyWhenItHeadsIn) {
  for (const double side : {-1.0, 1.0}) {
    for (const double off : {-0.049, 0.0, 0.049}) {
      const Point start{side * (40.0 + off), 0.0};
      const RayPath in = tracePath(glass(), start, {-side, 0.1});
      EXPECT_EQ(in.pieces[0].medium, Medium::Glass) << start.x;
      EXPECT_EQ(in.count, 2);
      EXPECT_EQ(in.meetings[0].face, side < 0.0 ? Side::Right : Side::Left);
      EXPECT_TRUE(tracePath(glass(), start, {side, 0.1}).missed()) << start.x;
    }
    const RayPath outside = tracePath(glass(), {side * 40.051, 0.0}, {-side, 0.0});
    EXPECT_EQ(outside.count, 3);
    EXPECT_EQ(outside.pieces[0].medium, Medium::Air);
    const RayPath inside = tracePath(glass(), {side * 39.949, 0.0}, {side, 0.0});
    EXPECT_EQ(inside.count, 2);
    EXPECT_EQ(inside.meetings[0].face, side < 0.0 ? Side::Left : Side::Right);
  }
}

TEST(TracePath, AStartOnAFaceThatHeadsAlongTheTangentHasLeftTheLens) {
  // Just within the face, so that the line still has a chord; its middle is the very start.
  for (const double side : {-1.0, 1.0}) {
    for (const double dy : {1.0, -1.0}) {
      const RayPath path = tracePath(glass(), {side * 39.99, 0.0}, {0.0, dy});
      EXPECT_TRUE(path.missed()) << side << ' ' << dy;
      expectPoint(path.end(), side * 39.99, dy * 200.0);
    }
    // A little further in it is a ray in the glass like any other.
    EXPECT_EQ(tracePath(glass(), {side * 39.9, 0.0}, {0.0, 1.0}).pieces[0].medium, Medium::Glass);
  }
}

TEST(TracePath, AClosedDiaphragmLetsNothingThrough) {
  for (const Diafragma& closed :
       {Diafragma{-100.0, 0.0, 0.0}, Diafragma{-100.0, 20.0, 20.0}, Diafragma{-100.0, -5.0, 5.0}}) {
    Bench setup = glass();
    setup.diafragma = closed;
    for (const double y : {0.0, 5.0, 20.0}) {
      const RayPath path = tracePath(setup, {-200.0, y}, {1.0, 0.0});
      EXPECT_EQ(path.ending, Ending::Diaphragm);
      expectPoint(path.end(), -100.0, y);
    }
    // What never reaches it goes on.
    EXPECT_EQ(tracePath(setup, {-90.0, 0.0}, {1.0, 0.0}).ending, Ending::Open);
  }
}

TEST(HasLens, AsksForGlassBetweenCrossingCircles) {
  EXPECT_TRUE(hasLens({-50.0, 100.0, 20.0, 90.0}));
  EXPECT_TRUE(hasLens({-450.0, 500.0, 0.0, 50.0}));     // tangent inside: a ball
  EXPECT_FALSE(hasLens({-50.0, 100.0, 200.0, 150.0}));  // tangent outside
  EXPECT_FALSE(hasLens({-50.0, 100.0, 300.0, 90.0}));
  EXPECT_FALSE(hasLens({0.0, 500.0, 20.0, 90.0}));
  EXPECT_FALSE(hasLens({0.0, 100.0, 0.0, 100.0}));
  EXPECT_FALSE(hasLens({-50.0, 100.0, 50.0, 0.0}));
}

TEST(Vertices, AreTheEndsOfTheGlassOnTheAxis) {
  EXPECT_EQ(leftVertex({-50.0, 100.0, 20.0, 90.0}), -70.0);
  EXPECT_EQ(rightVertex({-50.0, 100.0, 20.0, 90.0}), 50.0);
  EXPECT_EQ(leftVertex({-450.0, 500.0, 0.0, 50.0}), -50.0);
  EXPECT_EQ(rightVertex({0.0, 50.0, 450.0, 500.0}), 50.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
