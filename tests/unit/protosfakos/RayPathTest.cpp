// How a ray goes and how it ends, edge by edge.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/light/Refraction.h"
#include "optics/protosfakos/Hyperbola.h"
#include "tests/unit/protosfakos/Way.h"

namespace lensbench::protosfakos {
namespace {

light::Lens plano(double n) { return planoConvex(12, deriveLens(n)->b, n); }
light::Lens convex(double n) { return biconvex(12, deriveLens(n)->b, n); }
light::Ray left(double x, double y, double slope) {
  return rayWithSlope({x, y}, slope, Travel::Left);
}
light::Ray right(double x, double y, double slope) {
  return rayWithSlope({x, y}, slope, Travel::Right);
}

double onHyperbola(const light::Lens& glass, Point p) {
  return (p.x / semiAxis) * (p.x / semiAxis) - (p.y / bOf(glass)) * (p.y / bOf(glass));
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
  const auto into = light::refracted(d, {-1.0, 0.0}, 1.0 / n, light::Grazing::Reflected);
  ASSERT_TRUE(into);
  EXPECT_NEAR(into->y, std::sin(i) / n, 1e-15);
  EXPECT_NEAR(length(*into), 1.0, 1e-15);
  const auto other = light::refracted(d, {1.0, 0.0}, 1.0 / n, light::Grazing::Reflected);
  EXPECT_EQ(other->x, into->x);
  EXPECT_EQ(other->y, into->y);
}

TEST(Refraction, SineOfOneAndMoreIsTotalReflection) {
  const auto bent = [](double ratio) {
    return light::refracted({0.8, 0.6}, {1.0, 0.0}, ratio, light::Grazing::Reflected);
  };
  EXPECT_FALSE(bent(1.0 / 0.6));
  EXPECT_FALSE(bent(2.0));
  EXPECT_TRUE(bent(1.66));
}

TEST(Trace, PlaneFirstThenHyperbola) {
  const light::Lens glass = plano(1.5);
  const Way path = wayThrough(glass, left(108, 25, 0.3), wideOpen);
  ASSERT_EQ(path.ending, End::Emerged);
  EXPECT_NEAR(path.entry.x, 48.0, 1e-13);
  EXPECT_NEAR(path.entry.y, 7.0, 1e-13);
  ASSERT_TRUE(path.entryNormal);
  EXPECT_EQ(path.entryNormal->x, 1.0);
  EXPECT_NEAR(path.inside.y, -0.3 / std::hypot(1.0, 0.3) / 1.5, 1e-15);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-13);
  EXPECT_LT(path.exitNormal->x, 0.0);
}

TEST(Trace, WhereBothFacesAreEquallyNearTheRightOneIsEntered) {
  // Straight down through the rim of the biconvex lens, the one line that meets both at once.
  const light::Lens glass = convex(1.5);
  const auto down = [&](double x) { return trace(glass, {{x, 110.0}, {0.0, -1.0}}, wideOpen); };
  const light::RayPath rim = down(48.0);
  ASSERT_GT(rim.count, 1);
  EXPECT_NEAR(rim.pieces[0].to.y, rimHalfHeight(bOf(glass)), 1e-12);
  EXPECT_EQ(rim.meetings[0].face, light::Side::Right);
  EXPECT_EQ(down(47.0).meetings[0].face, light::Side::Left);
  EXPECT_EQ(down(49.0).meetings[0].face, light::Side::Right);
}

TEST(Trace, HyperbolaFirstFromTheLeft) {
  const light::Lens glass = plano(1.5);
  const Way path = wayThrough(glass, right(-60, 10, 0.09), wideOpen);
  ASSERT_EQ(path.ending, End::Emerged);
  EXPECT_LT(path.entry.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-13);
  EXPECT_NEAR(path.exit.x, 48.0, 1e-13);
  EXPECT_EQ(path.exitNormal->x, 1.0);
  EXPECT_GT(path.emerging.x, 0.0);
}

TEST(Trace, BiconvexEntersByTheMirroredFaceAndLeavesByTheFirst) {
  const light::Lens glass = convex(1.5);
  const Way path = wayThrough(glass, left(108, 25, 0.3), wideOpen);
  ASSERT_EQ(path.ending, End::Emerged);
  EXPECT_GT(path.entry.x, 48.0);
  EXPECT_LT(path.entry.x, 84.0 + 25.0);
  EXPECT_NEAR(onHyperbola(glass, {96.0 - path.entry.x, path.entry.y}), 1.0, 1e-13);
  EXPECT_GT(path.entryNormal->x, 0.0);
  EXPECT_LT(path.exit.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-13);
}

TEST(Trace, FarFocusGivesParallelRaysInside) {
  for (const double n : {1.01, 1.33, 1.5, 2.5}) {
    const light::Lens glass = plano(n);
    for (double m = -0.9; m <= 0.9; m += 0.03) {
      const Way path = wayThrough(glass, right(-12.0 * n, 0, m), wideOpen);
      if (path.ending == End::Missed || !path.entryNormal) continue;
      EXPECT_NEAR(path.inside.y, 0.0, 1e-13) << n << ' ' << m;
      EXPECT_EQ(path.ending, End::Emerged);
      EXPECT_NEAR(path.emerging.y, 0.0, 1e-13);
    }
  }
}

TEST(Trace, BeyondTheRimMisses) {
  const light::Lens glass = plano(1.5);
  const double rim = rimHalfHeight(bOf(glass));
  EXPECT_EQ(wayThrough(glass, left(130, rim + 1e-6, 0), wideOpen).ending, End::Missed);
  EXPECT_EQ(wayThrough(glass, left(130, -rim - 1e-6, 0), wideOpen).ending, End::Missed);
  EXPECT_NE(wayThrough(glass, left(130, rim - 1e-6, 0), wideOpen).ending, End::Missed);
  EXPECT_EQ(wayThrough(convex(1.5), left(130, rim + 1e-6, 0), wideOpen).ending, End::Missed);
  EXPECT_NE(wayThrough(convex(1.5), left(130, rim - 1e-3, 0), wideOpen).ending, End::Missed);
}

TEST(Trace, PassingOverTheRimItMayMeetTheCurveBehind) {
  const light::Lens glass = plano(1.2);
  const Way path = wayThrough(glass, left(60, 45, 0.9), wideOpen);
  EXPECT_GT(45 - 0.9 * 12, rimHalfHeight(bOf(glass)));
  ASSERT_NE(path.ending, End::Missed);
  EXPECT_LT(path.entry.x, 48.0);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-12);
}

TEST(Trace, VertexLetsPassStraight) {
  for (const light::Lens& glass : {plano(1.5), convex(1.5), plano(2.5)}) {
    const Way axial = wayThrough(glass, left(108, 0, 0), wideOpen);
    ASSERT_EQ(axial.ending, End::Emerged);
    EXPECT_EQ(axial.emerging.x, -1.0);
    EXPECT_EQ(axial.emerging.y, 0.0);
    EXPECT_NEAR(axial.exit.x, 12.0, 1e-13);
    EXPECT_FALSE(axial.exitNormal);
  }
  // Obliquely through the vertex: straight at both faces.
  const Way oblique = wayThrough(plano(1.5), right(0, 9, -0.75), wideOpen);
  ASSERT_EQ(oblique.ending, End::Emerged);
  EXPECT_FALSE(oblique.entryNormal);
  EXPECT_FALSE(oblique.exitNormal);
  EXPECT_NEAR(oblique.emerging.y, -0.6, 1e-15);
  EXPECT_NEAR(oblique.exit.x, 48.0, 1e-12);
  EXPECT_NEAR(oblique.exit.y, -27.0, 1e-12);
}

TEST(Trace, SourceInTheGlassLeavesByTheFaceAhead) {
  const light::Lens glass = plano(1.5);
  const Way path = wayThrough(glass, left(30, 0.5, 0.1), wideOpen);
  ASSERT_EQ(path.ending, End::Emerged);
  EXPECT_TRUE(path.startsInGlass);
  EXPECT_EQ(path.entry.x, 30.0);
  EXPECT_FALSE(path.entryNormal);
  EXPECT_TRUE(path.exitNormal);
  EXPECT_EQ(path.inside.x, path.incident.direction.x);
}

TEST(Trace, SourceOnAFace) {
  const light::Lens glass = plano(1.5);
  // On the plane it enters there; on the curve, looking outwards, it is already out.
  const Way plane = wayThrough(glass, left(48, 3, 0.2), wideOpen);
  EXPECT_EQ(plane.ending, End::Emerged);
  EXPECT_FALSE(plane.startsInGlass);
  EXPECT_TRUE(plane.entryNormal);
  EXPECT_NEAR(plane.entry.y, 3.0, 1e-13);
  EXPECT_EQ(wayThrough(glass, left(12, 0, 0.2), wideOpen).ending, End::Missed);
  EXPECT_EQ(wayThrough(glass, left(12, 0, 0), wideOpen).ending, End::Missed);
  const double y = bOf(glass) * std::sqrt(3.0);
  EXPECT_EQ(wayThrough(glass, left(24, y, 0.5), wideOpen).ending, End::Missed);
  // At the right vertex of the biconvex lens every ray of a fan enters.
  for (double m = -0.9; m <= 0.9; m += 0.03) {
    EXPECT_NE(wayThrough(convex(1.5), left(84, 0, m), wideOpen).ending, End::Missed) << m;
  }
}

TEST(Trace, TotalReflectionEndsAtTheFace) {
  const light::Lens glass = plano(2.5);
  const Way path = wayThrough(glass, left(30, 20, -0.9), wideOpen);
  ASSERT_EQ(path.ending, End::TotalReflection);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-12);
}

TEST(Trace, BackThroughTheFaceItEnteredByIsTrapped) {
  // Steeply down close to the vertex, in and out by the curve.
  const light::Lens glass = plano(1.5);
  const Way path = wayThrough(glass, left(15, 60, 40), wideOpen);
  ASSERT_EQ(path.ending, End::Trapped);
  EXPECT_NEAR(onHyperbola(glass, path.entry), 1.0, 1e-12);
  EXPECT_NEAR(onHyperbola(glass, path.exit), 1.0, 1e-12);
  EXPECT_LT(path.exit.y, path.entry.y);
}

TEST(Trace, VerticalSlopesOfTan90) {
  for (const double degrees : {90.0, -90.0}) {
    const double m = std::tan(std::numbers::pi * degrees / 180.0);
    ASSERT_GT(std::fabs(m), 1e16);
    for (const light::Lens& glass : {plano(1.5), convex(1.5)}) {
      const Way beside = wayThrough(glass, left(130, 40, m), {130.0, 10.0, -10.0});
      EXPECT_EQ(beside.ending, End::Missed);
      EXPECT_NEAR(length(beside.incident.direction), 1.0, 1e-15);
      const Way through = wayThrough(glass, left(14, degrees > 0 ? 110 : -110, m), wideOpen);
      ASSERT_EQ(through.ending, End::Trapped);
      EXPECT_NEAR(through.entry.x, 14.0, 1e-9);
    }
  }
}

TEST(Trace, IndexOneLetsOnlyTheAxialRayThrough) {
  for (const light::Lens& glass : {planoConvex(12, 0, 1), biconvex(12, 0, 1)}) {
    const Way axial = wayThrough(glass, left(108, 0, 0), wideOpen);
    ASSERT_EQ(axial.ending, End::Emerged);
    EXPECT_EQ(axial.exit.x, 12.0);
    EXPECT_EQ(axial.emerging.x, -1.0);
    const Way back = wayThrough(glass, right(-20, 0, 0), wideOpen);
    ASSERT_EQ(back.ending, End::Emerged);
    EXPECT_EQ(back.entry.x, 12.0);
    for (const double m : {0.9, 0.03, -0.3, 1e16}) {
      EXPECT_EQ(wayThrough(glass, left(108, 0, m), wideOpen).ending, End::Missed);
      EXPECT_EQ(wayThrough(glass, left(108, 25, m), wideOpen).ending, End::Missed);
      EXPECT_EQ(wayThrough(glass, left(30, 0, m), wideOpen).ending, End::Missed);
    }
  }
}

TEST(Trace, IndexBarelyAboveOneBendsNothing) {
  const double n = std::nextafter(1.0, 2.0);
  for (const light::Lens& glass : {plano(n), convex(n)}) {
    ASSERT_GT(bOf(glass), 0.0);
    const Way path = wayThrough(glass, left(108, bOf(glass) / 2, 0), wideOpen);
    ASSERT_EQ(path.ending, End::Emerged);
    EXPECT_NEAR(path.emerging.x, -1.0, 1e-7);
    EXPECT_EQ(wayThrough(glass, left(108, 1, 0), wideOpen).ending, End::Missed);
  }
}

TEST(Trace, DenseAirRefusesEntry) {
  // Index below 1 is never offered, but total reflection on entry ends a ray like any other.
  const light::Lens glass = planoConvex(12, 13, 0.5);
  const Way path = wayThrough(glass, left(108, 50, 0.8), wideOpen);
  EXPECT_EQ(path.ending, End::TotalReflection);
  EXPECT_NEAR(path.exit.x, 48.0, 1e-13);
}

TEST(Trace, WithoutAxisOrIndexIsDivisionByZero) {
  EXPECT_THROW(planoConvex(0, 13, 1.5), RuntimeError);
  EXPECT_THROW(biconvex(12, 13, 0), RuntimeError);
}

TEST(Diaphragm, StopsWhatPassesOutsideItsOpening) {
  const light::Lens glass = plano(1.5);
  const Diafragma narrow{90.0, 10.0, -10.0};
  const Way high = wayThrough(glass, left(108, 25, 0.3), narrow);
  ASSERT_EQ(high.ending, End::Stopped);
  EXPECT_EQ(high.stop.x, 90.0);
  EXPECT_NEAR(high.stop.y, 25.0 - 0.3 * 18, 1e-13);
  EXPECT_EQ(wayThrough(glass, left(108, 0, 0.3), narrow).ending, End::Emerged);
  EXPECT_EQ(wayThrough(glass, left(108, -25, -0.3), narrow).ending, End::Stopped);
  // The ends of the opening let pass.
  EXPECT_NE(wayThrough(glass, left(108, 10, 0), narrow).ending, End::Stopped);
  EXPECT_NE(wayThrough(glass, left(108, -10, 0), narrow).ending, End::Stopped);
}

TEST(Diaphragm, AnOpeningOfNoHeightStopsEveryRayThatReachesIt) {
  for (const light::Lens& glass : {plano(1.5), convex(1.5)}) {
    for (const Diafragma& closed : {Diafragma{90.0, 0.0, 0.0}, Diafragma{90.0, -5.0, 5.0}}) {
      for (const double y : {0.0, 3.0, -5.0, 5.0, 80.0}) {
        const Way path = wayThrough(glass, left(108, y, 0), closed);
        ASSERT_EQ(path.ending, End::Stopped) << y;
        EXPECT_EQ(path.stop.x, 90.0);
        EXPECT_EQ(path.stop.y, y);
      }
    }
    // One that does not reach it goes on.
    EXPECT_EQ(wayThrough(glass, left(108, 0, 0), {108.0, 0.0, 0.0}).ending, End::Emerged);
    EXPECT_EQ(wayThrough(glass, left(108, 0, 0), {-30.0, 0.0, 0.0}).ending, End::Emerged);
  }
}

TEST(Diaphragm, CountsOnlyBetweenSourceAndLens) {
  const light::Lens glass = plano(1.5);
  const light::Ray ray = left(108, 25, 0.3);
  EXPECT_EQ(wayThrough(glass, ray, {130.0, 10.0, -10.0}).ending,
            End::Emerged);  // behind the source
  EXPECT_EQ(wayThrough(glass, ray, {108.0, 10.0, -10.0}).ending, End::Emerged);  // at the source
  EXPECT_EQ(wayThrough(glass, ray, {30.0, 1.0, -1.0}).ending, End::Emerged);     // in the lens
  EXPECT_EQ(wayThrough(glass, ray, {-50.0, 1.0, -1.0}).ending, End::Emerged);    // beyond it
  EXPECT_EQ(wayThrough(glass, ray, {48.0, 1.0, -1.0}).ending, End::Stopped);     // at the entry
  const light::Ray fromLeft = right(-60, 10, 0.09);
  EXPECT_EQ(wayThrough(glass, fromLeft, {0.0, 1.0, -1.0}).ending, End::Stopped);
  EXPECT_EQ(wayThrough(glass, fromLeft, {60.0, 1.0, -1.0}).ending, End::Emerged);
  // A source in the glass has no way before the lens.
  EXPECT_EQ(wayThrough(glass, left(30, 0.5, 0.1), {20.0, 0.1, -0.1}).ending, End::Emerged);
}

TEST(Diaphragm, StopsRaysThatWouldMissTheLens) {
  for (const light::Lens& glass : {plano(1.5), convex(1.5)}) {
    const light::Ray high = left(108, 80, 0);
    EXPECT_EQ(wayThrough(glass, high, {90.0, 10.0, -10.0}).ending, End::Stopped);
    EXPECT_EQ(wayThrough(glass, high, {40.0, 10.0, -10.0}).ending, End::Missed);
    EXPECT_EQ(wayThrough(glass, high, {90.0, 100.0, -10.0}).ending, End::Missed);
    // Already past the rim: nothing before the lens is left to stop it.
    EXPECT_EQ(wayThrough(glass, left(30, 90, 0), {20.0, 10.0, -10.0}).ending, End::Missed);
  }
}

}  // namespace
}  // namespace lensbench::protosfakos
