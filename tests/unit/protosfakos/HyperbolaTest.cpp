// The lens from its index of refraction.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "optics/protosfakos/Hyperbola.h"

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

}  // namespace
}  // namespace lensbench::protosfakos
