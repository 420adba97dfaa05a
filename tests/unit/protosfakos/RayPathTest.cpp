// How a ray goes and how it ends, edge by edge.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/RayPath.h"

namespace lensbench::protosfakos {
namespace {

constexpr Diafragma open{130.0, 1e9, -1e9};

Glass plano(double n) { return planoConvex(12, deriveLens(n)->b, n); }
Glass convex(double n) { return biconvex(12, deriveLens(n)->b, n); }
Ray left(double x, double y, double slope) { return rayWithSlope({x, y}, slope, Travel::Left); }
Ray right(double x, double y, double slope) { return rayWithSlope({x, y}, slope, Travel::Right); }

double onHyperbola(const Glass& glass, Point p) {
  return (p.x / glass.a) * (p.x / glass.a) - (p.y / glass.b) * (p.y / glass.b);
}

TEST(Ray, HasUnitDirectionAtEverySlope) {
  for (const double m : {0.0, 0.9, -3.0, 1.633123935319537e16, -1.633123935319537e16, 1e300}) {
    EXPECT_NEAR(length(left(0, 0, m).direction), 1.0, 1e-15) << m;
    EXPECT_LE(left(0, 0, m).direction.x, 0.0);
    EXPECT_GE(right(0, 0, m).direction.x, 0.0);
  }
  EXPECT_NEAR(left(0, 0, 0.75).direction.x, -0.8, 1e-15);
  EXPECT_NEAR(left(0, 0, 0.75).direction.y, -0.6, 1e-15);
}

TEST(Refraction, FollowsTheLawOfSines) {
  const double i = 0.7, n = 1.5;
  const Point d{std::cos(i), std::sin(i)};
  const auto into = refracted(d, {-1.0, 0.0}, 1.0 / n);
  ASSERT_TRUE(into);
  EXPECT_NEAR(into->y, std::sin(i) / n, 1e-15);
  EXPECT_NEAR(length(*into), 1.0, 1e-15);
  const auto other = refracted(d, {1.0, 0.0}, 1.0 / n);
  EXPECT_EQ(other->x, into->x);
  EXPECT_EQ(other->y, into->y);
}

TEST(Refraction, SineOfOneAndMoreIsTotalReflection) {
  EXPECT_FALSE(refracted({0.8, 0.6}, {1.0, 0.0}, 1.0 / 0.6));
  EXPECT_FALSE(refracted({0.8, 0.6}, {1.0, 0.0}, 2.0));
  EXPECT_TRUE(refracted({0.8, 0.6}, {1.0, 0.0}, 1.66));
}

TEST(Trace, PlaneFirstThenHyperbola) {
  const Glass glass = plano(1.5);
  const RayPath path = trace(glass, left(108, 25, 0.3), open);
  ASSERT_EQ(path.ending, Ending::Emerged);
  EXPECT_NEAR(path.entry.x, 48.0, 1e-13);
  EXPECT_NEAR(path.entry.y, 7.0, 1e-13);
  ASSERT_TRUE(path.entryNormal);
  EXPECT_EQ(path.entryNormal->x, 1.0);
  EXPECT_NEAR(path.inside.y, -0.3 / std::hypot(1.0, 0.3) / 1.5, 1e-15);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-13);
  EXPECT_LT(path.exitNormal->x, 0.0);
}

TEST(GlassChord, WhereBothFacesAreEquallyNearTheRightOneIsEntered) {
  // Straight down through the rim of the biconvex lens, the one line that meets both at once.
  const auto way = throughGlass(convex(1.5), {{48.0, 110.0}, {0.0, -1.0}});
  ASSERT_TRUE(way);
  EXPECT_NEAR(110.0 - way->chord.from, rimHalfHeight(convex(1.5).b), 1e-12);
  EXPECT_EQ(way->enteredFace, 1);
  EXPECT_EQ(throughGlass(convex(1.5), {{47.0, 110.0}, {0.0, -1.0}})->enteredFace, 0);
  EXPECT_EQ(throughGlass(convex(1.5), {{49.0, 110.0}, {0.0, -1.0}})->enteredFace, 1);
}

TEST(Trace, HyperbolaFirstFromTheLeft) {
  const Glass glass = plano(1.5);
  const RayPath path = trace(glass, right(-60, 10, 0.09), open);
  ASSERT_EQ(path.ending, Ending::Emerged);
  EXPECT_LT(path.entry.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-13);
  EXPECT_NEAR(path.exit.x, 48.0, 1e-13);
  EXPECT_EQ(path.exitNormal->x, 1.0);
  EXPECT_GT(path.emerging.x, 0.0);
}

TEST(Trace, BiconvexEntersByTheMirroredFaceAndLeavesByTheFirst) {
  const Glass glass = convex(1.5);
  const RayPath path = trace(glass, left(108, 25, 0.3), open);
  ASSERT_EQ(path.ending, Ending::Emerged);
  EXPECT_GT(path.entry.x, 48.0);
  EXPECT_LT(path.entry.x, 84.0 + 25.0);
  EXPECT_NEAR(onHyperbola(glass, {96.0 - path.entry.x, path.entry.y}), 1.0, 1e-13);
  EXPECT_GT(path.entryNormal->x, 0.0);
  EXPECT_LT(path.exit.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-13);
}

TEST(Trace, FarFocusGivesParallelRaysInside) {
  for (const double n : {1.01, 1.33, 1.5, 2.5}) {
    const Glass glass = plano(n);
    for (double m = -0.9; m <= 0.9; m += 0.03) {
      const RayPath path = trace(glass, right(-12.0 * n, 0, m), open);
      if (path.ending == Ending::Missed || !path.entryNormal) continue;
      EXPECT_NEAR(path.inside.y, 0.0, 1e-13) << n << ' ' << m;
      EXPECT_EQ(path.ending, Ending::Emerged);
      EXPECT_NEAR(path.emerging.y, 0.0, 1e-13);
    }
  }
}

TEST(Trace, BeyondTheRimMisses) {
  const Glass glass = plano(1.5);
  const double rim = rimHalfHeight(glass.b);
  EXPECT_EQ(trace(glass, left(130, rim + 1e-6, 0), open).ending, Ending::Missed);
  EXPECT_EQ(trace(glass, left(130, -rim - 1e-6, 0), open).ending, Ending::Missed);
  EXPECT_NE(trace(glass, left(130, rim - 1e-6, 0), open).ending, Ending::Missed);
  EXPECT_EQ(trace(convex(1.5), left(130, rim + 1e-6, 0), open).ending, Ending::Missed);
  EXPECT_NE(trace(convex(1.5), left(130, rim - 1e-3, 0), open).ending, Ending::Missed);
}

TEST(Trace, PassingOverTheRimItMayMeetTheCurveBehind) {
  const Glass glass = plano(1.2);
  const RayPath path = trace(glass, left(60, 45, 0.9), open);
  EXPECT_GT(45 - 0.9 * 12, rimHalfHeight(glass.b));
  ASSERT_NE(path.ending, Ending::Missed);
  EXPECT_LT(path.entry.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-12);
}

TEST(Trace, VertexLetsPassStraight) {
  for (const Glass& glass : {plano(1.5), convex(1.5), plano(2.5)}) {
    const RayPath axial = trace(glass, left(108, 0, 0), open);
    ASSERT_EQ(axial.ending, Ending::Emerged);
    EXPECT_EQ(axial.emerging.x, -1.0);
    EXPECT_EQ(axial.emerging.y, 0.0);
    EXPECT_NEAR(axial.exit.x, 12.0, 1e-13);
    EXPECT_FALSE(axial.exitNormal);
  }
  // Obliquely through the vertex: straight at both faces.
  const RayPath oblique = trace(plano(1.5), right(0, 9, -0.75), open);
  ASSERT_EQ(oblique.ending, Ending::Emerged);
  EXPECT_FALSE(oblique.entryNormal);
  EXPECT_FALSE(oblique.exitNormal);
  EXPECT_NEAR(oblique.emerging.y, -0.6, 1e-15);
  EXPECT_NEAR(oblique.exit.x, 48.0, 1e-12);
  EXPECT_NEAR(oblique.exit.y, -27.0, 1e-12);
}

TEST(Trace, SourceInTheGlassLeavesByTheFaceAhead) {
  const Glass glass = plano(1.5);
  const RayPath path = trace(glass, left(30, 0.5, 0.1), open);
  ASSERT_EQ(path.ending, Ending::Emerged);
  EXPECT_TRUE(path.startsInGlass);
  EXPECT_EQ(path.entry.x, 30.0);
  EXPECT_FALSE(path.entryNormal);
  EXPECT_TRUE(path.exitNormal);
  EXPECT_EQ(path.inside.x, path.incident.direction.x);
}

TEST(Trace, SourceOnAFace) {
  const Glass glass = plano(1.5);
  // On the plane it enters there; on the curve, looking outwards, it is already out.
  const RayPath plane = trace(glass, left(48, 3, 0.2), open);
  EXPECT_EQ(plane.ending, Ending::Emerged);
  EXPECT_FALSE(plane.startsInGlass);
  EXPECT_TRUE(plane.entryNormal);
  EXPECT_NEAR(plane.entry.y, 3.0, 1e-13);
  EXPECT_EQ(trace(glass, left(12, 0, 0.2), open).ending, Ending::Missed);
  EXPECT_EQ(trace(glass, left(12, 0, 0), open).ending, Ending::Missed);
  const double y = glass.b * std::sqrt(3.0);
  EXPECT_EQ(trace(glass, left(24, y, 0.5), open).ending, Ending::Missed);
  // At the right vertex of the biconvex lens every ray of a fan enters.
  for (double m = -0.9; m <= 0.9; m += 0.03) {
    EXPECT_NE(trace(convex(1.5), left(84, 0, m), open).ending, Ending::Missed) << m;
  }
}

TEST(Trace, TotalReflectionEndsAtTheFace) {
  const Glass glass = plano(2.5);
  const RayPath path = trace(glass, left(30, 20, -0.9), open);
  ASSERT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_FALSE(path.exitNormal);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-12);
}

TEST(Trace, BackThroughTheFaceItEnteredByIsTrapped) {
  // Steeply down close to the vertex, in and out by the curve.
  const Glass glass = plano(1.5);
  const RayPath path = trace(glass, left(15, 60, 40), open);
  ASSERT_EQ(path.ending, Ending::Trapped);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-12);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-12);
  EXPECT_LT(path.exit.y, path.entry.y);
}

TEST(Trace, VerticalSlopesOfTan90) {
  for (const double degrees : {90.0, -90.0}) {
    const double m = std::tan(std::numbers::pi * degrees / 180.0);
    ASSERT_GT(std::fabs(m), 1e16);
    for (const Glass& glass : {plano(1.5), convex(1.5)}) {
      const RayPath beside = trace(glass, left(130, 40, m), {130.0, 10.0, -10.0});
      EXPECT_EQ(beside.ending, Ending::Missed);
      EXPECT_NEAR(length(beside.incident.direction), 1.0, 1e-15);
      const RayPath through = trace(glass, left(14, degrees > 0 ? 110 : -110, m), open);
      ASSERT_EQ(through.ending, Ending::Trapped);
      EXPECT_NEAR(through.entry.x, 14.0, 1e-9);
    }
  }
}

TEST(Trace, IndexOneLetsOnlyTheAxialRayThrough) {
  for (const Glass& glass : {planoConvex(12, 0, 1), biconvex(12, 0, 1)}) {
    const RayPath axial = trace(glass, left(108, 0, 0), open);
    ASSERT_EQ(axial.ending, Ending::Emerged);
    EXPECT_EQ(axial.exit.x, 12.0);
    EXPECT_EQ(axial.emerging.x, -1.0);
    const RayPath back = trace(glass, right(-20, 0, 0), open);
    ASSERT_EQ(back.ending, Ending::Emerged);
    EXPECT_EQ(back.entry.x, 12.0);
    for (const double m : {0.9, 0.03, -0.3, 1e16}) {
      EXPECT_EQ(trace(glass, left(108, 0, m), open).ending, Ending::Missed);
      EXPECT_EQ(trace(glass, left(108, 25, m), open).ending, Ending::Missed);
      EXPECT_EQ(trace(glass, left(30, 0, m), open).ending, Ending::Missed);
    }
  }
}

TEST(Trace, IndexBarelyAboveOneBendsNothing) {
  const double n = std::nextafter(1.0, 2.0);
  for (const Glass& glass : {plano(n), convex(n)}) {
    ASSERT_GT(glass.b, 0.0);
    const RayPath path = trace(glass, left(108, glass.b / 2, 0), open);
    ASSERT_EQ(path.ending, Ending::Emerged);
    EXPECT_NEAR(path.emerging.x, -1.0, 1e-7);
    EXPECT_EQ(trace(glass, left(108, 1, 0), open).ending, Ending::Missed);
  }
}

TEST(Trace, DenseAirRefusesEntry) {
  // Index below 1 is never offered, but total reflection on entry ends a ray like any other.
  const Glass glass = planoConvex(12, 13, 0.5);
  const RayPath path = trace(glass, left(108, 50, 0.8), open);
  EXPECT_EQ(path.ending, Ending::TotalReflection);
  EXPECT_EQ(path.exit.x, path.entry.x);
}

TEST(Trace, WithoutAxisOrIndexIsDivisionByZero) {
  EXPECT_THROW(planoConvex(0, 13, 1.5), RuntimeError);
  EXPECT_THROW(biconvex(12, 13, 0), RuntimeError);
  EXPECT_THROW(biconvex(12, 13, Variant()), RuntimeError);
}

TEST(Diaphragm, StopsWhatPassesOutsideItsOpening) {
  const Glass glass = plano(1.5);
  const Diafragma narrow{90.0, 10.0, -10.0};
  const RayPath high = trace(glass, left(108, 25, 0.3), narrow);
  ASSERT_EQ(high.ending, Ending::Stopped);
  EXPECT_EQ(high.stop.x, 90.0);
  EXPECT_NEAR(high.stop.y, 25.0 - 0.3 * 18, 1e-13);
  EXPECT_EQ(trace(glass, left(108, 0, 0.3), narrow).ending, Ending::Emerged);
  EXPECT_EQ(trace(glass, left(108, -25, -0.3), narrow).ending, Ending::Stopped);
  // The ends of the opening let pass.
  EXPECT_NE(trace(glass, left(108, 10, 0), narrow).ending, Ending::Stopped);
  EXPECT_NE(trace(glass, left(108, -10, 0), narrow).ending, Ending::Stopped);
}

TEST(Diaphragm, CountsOnlyBetweenSourceAndLens) {
  const Glass glass = plano(1.5);
  const Ray ray = left(108, 25, 0.3);
  EXPECT_EQ(trace(glass, ray, {130.0, 10.0, -10.0}).ending, Ending::Emerged);  // behind the source
  EXPECT_EQ(trace(glass, ray, {108.0, 10.0, -10.0}).ending, Ending::Emerged);  // at the source
  EXPECT_EQ(trace(glass, ray, {30.0, 1.0, -1.0}).ending, Ending::Emerged);     // in the lens
  EXPECT_EQ(trace(glass, ray, {-50.0, 1.0, -1.0}).ending, Ending::Emerged);    // beyond it
  EXPECT_EQ(trace(glass, ray, {48.0, 1.0, -1.0}).ending, Ending::Stopped);     // at the entry
  const Ray fromLeft = right(-60, 10, 0.09);
  EXPECT_EQ(trace(glass, fromLeft, {0.0, 1.0, -1.0}).ending, Ending::Stopped);
  EXPECT_EQ(trace(glass, fromLeft, {60.0, 1.0, -1.0}).ending, Ending::Emerged);
  // A source in the glass has no way before the lens.
  EXPECT_EQ(trace(glass, left(30, 0.5, 0.1), {20.0, 0.1, -0.1}).ending, Ending::Emerged);
}

TEST(Diaphragm, StopsRaysThatWouldMissTheLens) {
  for (const Glass& glass : {plano(1.5), convex(1.5)}) {
    const Ray high = left(108, 80, 0);
    EXPECT_EQ(trace(glass, high, {90.0, 10.0, -10.0}).ending, Ending::Stopped);
    EXPECT_EQ(trace(glass, high, {40.0, 10.0, -10.0}).ending, Ending::Missed);
    EXPECT_EQ(trace(glass, high, {90.0, 100.0, -10.0}).ending, Ending::Missed);
    // Already past the rim: nothing before the lens is left to stop it.
    EXPECT_EQ(trace(glass, left(30, 90, 0), {20.0, 10.0, -10.0}).ending, Ending::Missed);
  }
}

}  // namespace
}  // namespace lensbench::protosfakos
