// Two circles, and a line with a circle.
#include <cmath>
#include <gtest/gtest.h>
#include <random>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Named.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr Boolean yes = -1;
constexpr Boolean no = 0;

void expectPoints(const SimeiaTomis& s, double x1, double y1, double x2, double y2) {
  EXPECT_EQ(s.x1, x1);
  EXPECT_EQ(s.y1, y1);
  EXPECT_EQ(s.x2, x2);
  EXPECT_EQ(s.y2, y2);
}

TEST(Tomikyklonapostasis, FindsTheRim) {
  const SimeiaTomis rim = tomikyklonapostasis(100, 90, 100);
  EXPECT_EQ(rim.found, yes);
  EXPECT_DOUBLE_EQ(rim.x1, 40.5);
  EXPECT_DOUBLE_EQ(rim.x2, 40.5);
  EXPECT_NEAR(rim.y1, std::sqrt(90.0 * 90.0 - 40.5 * 40.5), 1e-11);
  EXPECT_EQ(rim.y2, -rim.y1);
}

TEST(Tomikyklonapostasis, CountsTangentCirclesAsFound) {
  const SimeiaTomis rim = tomikyklonapostasis(190, 90, 100);
  EXPECT_EQ(rim.found, yes);
  expectPoints(rim, 90.0, 0.0, 90.0, 0.0);
}

TEST(Tomikyklonapostasis, LeavesZerosWhenTheCirclesMiss) {
  const SimeiaTomis rim = tomikyklonapostasis(300, 90, 100);
  EXPECT_EQ(rim.found, no);
  expectPoints(rim, 0.0, 0.0, 0.0, 0.0);
  EXPECT_EQ(tomikyklonapostasis(0, 90, 100).found, no);
}

TEST(Tomikyklonapostasis, DividesByAZeroDistanceOfEqualCircles) {
  EXPECT_THROW(tomikyklonapostasis(0, 90, 90), RuntimeError);
}

TEST(Tomikyklonaxona, FindsTheRimInScreenCoordinates) {
  const SimeiaTomis rim = tomikyklonaxona(-50, 20, 100, 90);
  EXPECT_EQ(rim.found, yes);
  EXPECT_NEAR(rim.x1, -50.0 + 0.5 * (70.0 + 1900.0 / 70.0), 1e-12);
  EXPECT_NEAR(std::hypot(rim.x1 + 50.0, rim.y1), 100.0, 1e-12);
  EXPECT_NEAR(std::hypot(rim.x2 - 20.0, rim.y2), 90.0, 1e-12);
  EXPECT_GT(rim.y1, 0.0);
  EXPECT_EQ(rim.y2, -rim.y1);
}

TEST(Tomikyklonaxona, IsTheSameWithTheCirclesExchanged) {
  const SimeiaTomis rim = tomikyklonaxona(-50, 20, 100, 90);
  const SimeiaTomis exchanged = tomikyklonaxona(20, -50, 90, 100);
  EXPECT_NEAR(exchanged.x1, rim.x1, 1e-12);
  EXPECT_NEAR(exchanged.y1, rim.y1, 1e-12);
}

TEST(Tomikyklonaxona, RefusesConcentricCircles) {
  for (const int radius : {0, 50, 100, 500}) {
    const SimeiaTomis rim = tomikyklonaxona(7, 7, radius, 100);
    EXPECT_EQ(rim.found, no);
    expectPoints(rim, 0.0, 0.0, 0.0, 0.0);
  }
}

TEST(Tomikyklonaxona, CountsTangentCirclesAsFound) {
  const SimeiaTomis outside = tomikyklonaxona(0, 150, 100, 50);
  EXPECT_EQ(outside.found, yes);
  expectPoints(outside, 100.0, 0.0, 100.0, 0.0);
  const SimeiaTomis inside = tomikyklonaxona(0, 50, 100, 50);
  EXPECT_EQ(inside.found, yes);
  expectPoints(inside, 100.0, 0.0, 100.0, 0.0);
}

TEST(Tomikyklonaxona, RefusesCirclesThatMissOrLieInside) {
  EXPECT_EQ(tomikyklonaxona(0, 151, 100, 50).found, no);
  EXPECT_EQ(tomikyklonaxona(0, 49, 100, 50).found, no);
}

TEST(Tomieytheiaskyklou, GivesTheLargerXFirst) {
  for (const int direction : {1, -1}) {
    const SimeiaTomis s = tomieytheiaskyklou(10, 0, 5, direction, 0, -20, 3);
    EXPECT_EQ(s.found, yes);
    expectPoints(s, 14.0, 3.0, 6.0, 3.0);
  }
}

TEST(Tomieytheiaskyklou, GivesTheLargerYFirstOnAVerticalLine) {
  const SimeiaTomis s = tomieytheiaskyklou(10, 1, 5, 0, -1, 13, 100);
  EXPECT_EQ(s.found, yes);
  expectPoints(s, 13.0, 5.0, 13.0, -3.0);
}

TEST(Tomieytheiaskyklou, TakesTheZeroDirectionAsVertical) {
  expectPoints(tomieytheiaskyklou(10, 1, 5, 0, 0, 13, 100), 13.0, 5.0, 13.0, -3.0);
}

TEST(Tomieytheiaskyklou, RefusesATangent) {
  const SimeiaTomis s = tomieytheiaskyklou(0, 0, 5, 1, 0, -20, 5);
  EXPECT_EQ(s.found, no);
  expectPoints(s, -20.0, 5.0, -20.0, 5.0);
}

TEST(Tomieytheiaskyklou, RefusesAMissAtThePointOfTheLine) {
  const SimeiaTomis s = tomieytheiaskyklou(0, 0, 5, 1, 0, -20, 6);
  EXPECT_EQ(s.found, no);
  expectPoints(s, -20.0, 6.0, -20.0, 6.0);
}

TEST(Tomieytheiaskyklou, RefusesAVerticalTangentWithZeros) {
  const SimeiaTomis s = tomieytheiaskyklou(0, 0, 5, 0, 1, 5, -20);
  EXPECT_EQ(s.found, no);
  expectPoints(s, 0.0, 0.0, 0.0, 0.0);
}

TEST(NearCircle, HoldsTheSecondPointToATighterTolerance) {
  for (const double r : {1.0, 5.0, 500.0}) {
    EXPECT_TRUE(nearCircle(r, r, r));
    EXPECT_TRUE(nearCircle(0.5 * r, 0.5 * r, r));
    EXPECT_TRUE(nearCircle(1.00003 * r, r, r));
    EXPECT_TRUE(nearCircle(1.00003 * r, 1.000003 * r, r));
    EXPECT_FALSE(nearCircle(r, 1.00003 * r, r));
    EXPECT_FALSE(nearCircle(r, 1.000006 * r, r));
    EXPECT_FALSE(nearCircle(1.00006 * r, r, r));
  }
}

TEST(Tomieytheiaskyklou, RefusesPointsOffTheCircle) {
  // Steep lines lose digits in the slope form, and both points land off the circle by one share of
  // the radius: beyond the tolerance of the second point, which is the tighter one, none is taken.
  std::mt19937 random(1);
  std::uniform_real_distribution<double> exponent(5.0, 8.0);
  std::uniform_real_distribution<double> place(-5.0, 5.0);
  int within = 0;
  int between = 0;
  int beyond = 0;
  for (int i = 0; i < 300000; ++i) {
    const double dy = std::pow(10.0, exponent(random));
    const double cx = place(random);
    const double cy = place(random);
    const SimeiaTomis s = tomieytheiaskyklou(cx, cy, 5, 1, dy, cx + place(random), place(random));
    if (s.y1 == s.y2) continue;
    const double share1 = std::hypot(s.x1 - cx, s.y1 - cy) / 5.0;
    const double share2 = std::hypot(s.x2 - cx, s.y2 - cy) / 5.0;
    if (share1 < 1.00004 && share2 < 1.000004) {
      ++within;
      ASSERT_EQ(s.found, yes);
    } else if (share1 < 1.00004 && share2 > 1.000006) {
      ++between;
      ASSERT_EQ(s.found, no);
    } else if (share1 > 1.00006) {
      ++beyond;
      ASSERT_EQ(s.found, no);
    }
  }
  EXPECT_GT(within, 0);
  EXPECT_GT(between, 0);
  EXPECT_GT(beyond, 0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
