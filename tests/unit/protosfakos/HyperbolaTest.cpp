// The lens from its index of refraction, and the named formulas of the hyperbola.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "optics/protosfakos/Hyperbola.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench::protosfakos {
namespace {

TEST(DeriveLens, FollowsFromTheIndex) {
  const auto lens = deriveLens(1.5);
  ASSERT_TRUE(lens);
  EXPECT_EQ(lens->a, 12.0);
  EXPECT_EQ(lens->c, 18.0);
  EXPECT_NEAR(lens->b, 12.0 * std::sqrt(1.25), 1e-14);
  EXPECT_NEAR(deriveLens(2.5)->b, std::sqrt(756.0), 1e-13);
  EXPECT_NEAR(rimHalfHeight(lens->b), 51.96, 0.005);
}

TEST(DeriveLens, IndexOneIsALensWithoutHeight) {
  const auto lens = deriveLens(1.0);
  ASSERT_TRUE(lens);
  EXPECT_EQ(lens->b, 0.0);
  EXPECT_EQ(lens->c, 12.0);
}

TEST(DeriveLens, RefusesAnIndexBelowOneAndNeverRaises) {
  EXPECT_FALSE(deriveLens(0.99));
  EXPECT_FALSE(deriveLens(std::nextafter(1.0, 0.0)));
  EXPECT_FALSE(deriveLens(0));
  EXPECT_FALSE(deriveLens(Variant()));
  EXPECT_FALSE(deriveLens(-3));
  EXPECT_FALSE(deriveLens(std::numeric_limits<double>::max()));
  EXPECT_FALSE(deriveLens(std::numeric_limits<double>::lowest()));
  EXPECT_TRUE(deriveLens(1e300));
  EXPECT_TRUE(deriveLens(std::nextafter(1.0, 2.0)));
}

TEST(DeriveLens, EccentricityIsTheIndex) {
  for (int hundredths = 100; hundredths <= 250; ++hundredths) {
    const double n = hundredths / 100.0;
    const auto lens = deriveLens(n);
    EXPECT_NEAR(std::hypot(lens->a, lens->b) / lens->a, n, 1e-15) << n;
  }
}

TEST(Toxoimitono, IsTheArcSine) {
  EXPECT_EQ(toxoimitonoSahl(0).value(), 0.0);
  for (const double s : {-0.999, -0.5, 0.1, 0.7, 0.99999}) {
    EXPECT_NEAR(toxoimitonoSahl(s).value(), std::asin(s), 1e-13) << s;
  }
}

TEST(Toxoimitono, RaisesAtAndBeyondOne) {
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(1); }), 11);
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(-1); }), 11);
  EXPECT_EQ(errorNumber([] { toxoimitonoSahl(1.5); }), 5);
}

TEST(Apostasi, IsTheDistance) {
  EXPECT_EQ(apostasiSahl(1, 2, 4, 6).value(), 5.0);
  EXPECT_EQ(apostasiSahl(4, 6, 1, 2).value(), 5.0);
  EXPECT_EQ(apostasiSahl(Variant(), Variant(), 3, -4).value(), 5.0);
}

TEST(Tomiyperbolis, OrderOfTheRootsDependsOnTheSteepness) {
  const double a = 12.0, b = deriveLens(1.5)->b, k = b / a;
  // Less steep than the asymptotes: first the right branch for a line through the origin.
  EXPECT_GT(tomiyperbolis1(0, 0, b, a).value(), 0.0);
  EXPECT_NEAR(tomiyperbolis1(0, 0, b, a).value(), a, 1e-13);
  EXPECT_NEAR(tomiyperbolis2(0, 0, b, a).value(), -a, 1e-13);
  // Steeper: the plus root first.
  const double m = 2.0 * k, q = -60.0;
  const double A = m * m - k * k;
  const double D = b * b * ((q * q + b * b) / (a * a) - m * m);
  ASSERT_GT(D, 0.0);
  EXPECT_NEAR(tomiyperbolis1(m, q, b, a).value(), (-m * q + std::sqrt(D)) / A, 1e-12);
  EXPECT_NEAR(tomiyperbolis2(m, q, b, a).value(), (-m * q - std::sqrt(D)) / A, 1e-12);
}

TEST(Tomiyperbolis, PointsAreOnLineAndHyperbola) {
  for (const double n : {1.05, 1.33, 1.5, 2.5}) {
    const auto [a, b, c] = *deriveLens(n);
    for (double m = -2.05; m < 2.1; m += 0.1) {
      for (double q = -95.0; q < 100.0; q += 10.0) {
        for (const Variant& x : {tomiyperbolis1(m, q, b, a), tomiyperbolis2(m, q, b, a)}) {
          if (x.isEmpty()) continue;
          const double y = m * x.value() + q;
          const double scale = 1.0 + y * y / (b * b);
          EXPECT_NEAR((x.value() / a) * (x.value() / a) - y * y / (b * b), 1.0, 1e-10 * scale);
        }
      }
    }
  }
}

TEST(Tomiyperbolis, IsEmptyWithoutIntersection) {
  const auto [a, b, c] = *deriveLens(1.5);
  EXPECT_TRUE(tomiyperbolis1(3, 0, b, a).isEmpty());
  EXPECT_TRUE(tomiyperbolis2(3, 0, b, a).isEmpty());
}

TEST(Tomiyperbolis, ParallelToAnAsymptoteBothGiveTheOnePoint) {
  // b = a makes the asymptotes y = x and y = -x: x² - (x + 6)² = 144 at x = -15.
  EXPECT_EQ(tomiyperbolis1(1, 6, 12, 12).value(), -15.0);
  EXPECT_EQ(tomiyperbolis2(1, 6, 12, 12).value(), -15.0);
  EXPECT_EQ(tomiyperbolis1(-1, 6, 12, 12).value(), 15.0);
  EXPECT_EQ(errorNumber([] { tomiyperbolis1(1, 0, 12, 12); }), 11);
}

}  // namespace
}  // namespace lensbench::protosfakos
