// The opening of the diaphragm.
#include <gtest/gtest.h>

#include "optics/light/Stop.h"

namespace lensbench::light {
namespace {

TEST(HeightAt, FollowsTheLineOfTheRayBothWays) {
  const Diafragma diafragma{50.0, 30.0, -20.0};
  EXPECT_EQ(heightAt(diafragma, {-50.0, 10.0}, {1.0, 0.25}), 35.0);
  EXPECT_EQ(heightAt(diafragma, {150.0, 10.0}, {1.0, 0.25}), -15.0);
}

TEST(HeightAt, TakesASlopeThatIsNoNumberAsVertical) {
  for (const double dx : {0.0, 1e-310, -1e-310}) {
    for (const double x : {7.0, 50.0}) {
      EXPECT_EQ(heightAt({50.0, 30.0, -20.0}, {x, 31.0}, {dx, 1.0}), 31.0) << dx;
    }
  }
}

TEST(Stops, LetsTheEndsOfTheOpeningThrough) {
  const Diafragma diafragma{0.0, 30.0, -20.0};
  for (const double y : {-20.0, 0.0, 30.0}) {
    EXPECT_FALSE(stops(diafragma, y)) << y;
    EXPECT_FALSE(onBlade(diafragma, y)) << y;
  }
  for (const double y : {-20.001, 30.001}) {
    EXPECT_TRUE(stops(diafragma, y)) << y;
    EXPECT_TRUE(onBlade(diafragma, y)) << y;
  }
}

TEST(Stops, AClosedOpeningStopsEverything) {
  for (const double y : {-1.0, 0.0, 1.0}) {
    EXPECT_TRUE(stops({0.0, 0.0, 0.0}, y)) << y;
    EXPECT_TRUE(stops({0.0, -1.0, 1.0}, y)) << y;
  }
  // By its ends alone the one point would pass.
  EXPECT_FALSE(onBlade({0.0, 0.0, 0.0}, 0.0));
}

}  // namespace
}  // namespace lensbench::light
