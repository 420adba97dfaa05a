// Distance, arc sine, focal length, normal, sign and angle.
#include <cmath>
#include <gtest/gtest.h>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench::poreiaaktinon {
namespace {

TEST(Apostasi, IsTheEuclideanDistance) {
  EXPECT_DOUBLE_EQ(apostasi(1, 2, 4, 6), 5.0);
  EXPECT_EQ(apostasi(3, 3, 3, 3), 0.0);
  EXPECT_EQ(errorNumber([] { apostasi(1e200, 0, 0, 0); }), 6);
}

TEST(Toxoimitonou, IsExactAtTheEnds) {
  EXPECT_EQ(toxoimitonou(1).value(), 4.0 * std::atan(1.0) / 2.0);
  EXPECT_EQ(toxoimitonou(-1).value(), -4.0 * std::atan(1.0) / 2.0);
  EXPECT_EQ(toxoimitonou(0).value(), 0.0);
  EXPECT_FALSE(toxoimitonou(0).isEmpty());
}

TEST(Toxoimitonou, IsEmptyOutsideItsDomain) {
  EXPECT_TRUE(toxoimitonou(1.0000001).isEmpty());
  EXPECT_TRUE(toxoimitonou(-1.5).isEmpty());
}

TEST(Toxoimitonou, IsTheArcSine) {
  for (int i = -999; i < 1000; ++i) {
    const double s = i / 1000.0;
    EXPECT_NEAR(toxoimitonou(s).value(), std::asin(s), 1e-13) << s;
  }
}

TEST(Estiakiapostasi, IsTheLensmakersFocalLength) {
  EXPECT_DOUBLE_EQ(estiakiapostasi(10, 10, 1.5).value(), 10.0);
  EXPECT_NEAR(estiakiapostasi(90, 100, 1.5).value(), 94.7368421, 1e-7);
  EXPECT_LT(estiakiapostasi(100, 100, 0.5).value(), 0.0);
}

TEST(Estiakiapostasi, IsEmptyWithoutPower) {
  EXPECT_TRUE(estiakiapostasi(70, 70, 1).isEmpty());
  EXPECT_TRUE(estiakiapostasi(70, -70, 1.5).isEmpty());
}

TEST(Estiakiapostasi, DividesByAZeroRadius) {
  EXPECT_EQ(errorNumber([] { estiakiapostasi(100, 0, 1.5); }), 11);
  EXPECT_EQ(errorNumber([] { estiakiapostasi(0, 100, 1.5); }), 11);
}

TEST(Kathetos, PointsOutOfTheCircle) {
  const SinglePair normal = kathetos(13, 4, 10, 0, 5);
  EXPECT_EQ(normal.x, 0.6f);
  EXPECT_EQ(normal.y, 0.8f);
  EXPECT_EQ(errorNumber([] { kathetos(1, 1, 0, 0, 0); }), 11);
}

TEST(Prosimo, IsTheSign) {
  EXPECT_EQ(prosimo(0.001).value(), 1.0);
  EXPECT_EQ(prosimo(-7).value(), -1.0);
  EXPECT_EQ(prosimo(0).value(), 0.0);
  EXPECT_EQ(prosimo({}).value(), 0.0);
}

TEST(Gonia, IsTheComplementOfTheAngleBetween) {
  EXPECT_NEAR(gonia(1, 0, 1, 1).value(), std::atan(1.0), 1e-15);
  EXPECT_EQ(gonia(5, 0, 0, 2).value(), 0.0);
  EXPECT_NEAR(gonia(1, 0, -1, 1).value(), -std::atan(1.0), 1e-15);
  EXPECT_EQ(errorNumber([] { gonia(0, 0, 1, 0); }), 11);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
