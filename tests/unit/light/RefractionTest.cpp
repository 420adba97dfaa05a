// Snell's law.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/light/Refraction.h"

namespace lensbench::light {
namespace {

TEST(Refracted, FollowsTheLawOfSines) {
  const double angle = 0.7;
  const Point d{std::cos(angle), std::sin(angle)};
  for (const Grazing grazing : {Grazing::AlongTangent, Grazing::Reflected}) {
    for (const double n : {1.0, 1.5, 2.5}) {
      const auto into = refracted(d, {-1.0, 0.0}, 1.0 / n, grazing);
      ASSERT_TRUE(into);
      EXPECT_NEAR(into->y, std::sin(angle) / n, 1e-15);
      EXPECT_NEAR(length(*into), 1.0, 1e-15);
      // The normal may point to either side.
      const auto other = refracted(d, {1.0, 0.0}, 1.0 / n, grazing);
      EXPECT_EQ(other->x, into->x);
      EXPECT_EQ(other->y, into->y);
    }
  }
}

TEST(Refracted, KeepsTheSideOfTheNormalAndTheSense) {
  const Point normal = unit({-1.0, 1.0});
  const auto beyond = refracted({1.0, 0.0}, normal, 1.0 / 1.5, Grazing::AlongTangent);
  ASSERT_TRUE(beyond);
  EXPECT_NEAR(length(*beyond), 1.0, 1e-15);
  EXPECT_LT(dot(*beyond, normal), 0.0);
  EXPECT_NEAR(dot(*beyond, turned(normal)) * 1.5, dot({1.0, 0.0}, turned(normal)), 1e-15);
}

TEST(Refracted, ASineOfOneGoesAlongTheTangentOrIsReflected) {
  const Point d{0.8, 0.6};
  const auto along = refracted(d, {1.0, 0.0}, 1.0 / 0.6, Grazing::AlongTangent);
  ASSERT_TRUE(along);
  EXPECT_EQ(along->x, 0.0);
  EXPECT_EQ(along->y, 1.0);
  EXPECT_FALSE(refracted(d, {1.0, 0.0}, 1.0 / 0.6, Grazing::Reflected));
}

TEST(Refracted, MoreThanOneIsTotalReflection) {
  for (const Grazing grazing : {Grazing::AlongTangent, Grazing::Reflected}) {
    EXPECT_FALSE(refracted({0.8, 0.6}, {1.0, 0.0}, 2.0, grazing));
    EXPECT_FALSE(refracted({0.8, 0.6}, {1.0, 0.0}, 1.6667, grazing));
    EXPECT_TRUE(refracted({0.8, 0.6}, {1.0, 0.0}, 1.66, grazing));
  }
}

}  // namespace
}  // namespace lensbench::light
