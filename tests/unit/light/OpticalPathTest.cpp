// Optical path and the points that a wave reaches.
#include <gtest/gtest.h>

#include "optics/light/Tracer.h"
#include "tests/support/OpticalLength.h"

namespace lensbench::light {
namespace {

// 160 units of air, 80 of glass from x = -40 to x = 40, 360 of air.
RayPath axial(double n = 1.5, double phase = 0.0, double from = -200.0) {
  const Lens lens{Circle{{60.0, 0.0}, 100.0}, Circle{{-60.0, 0.0}, 100.0}, n};
  Conditions conditions;
  conditions.end = Edges{-400.0, 400.0, -200.0, 200.0};
  return trace(lens, {{from, 0.0}, {1.0, 0.0}}, conditions, phase);
}

double abscissa(const RayPath& path, double L) {
  return pointAtOpticalPath(path, L).value().position.x;
}

TEST(OpticalLength, CountsTheGlassNTimes) {
  EXPECT_NEAR(opticalLength(axial()), 160.0 + 120.0 + 360.0, 1e-12);
  EXPECT_NEAR(opticalLength(axial(), axial().pieces[1]), 120.0, 1e-12);
}

TEST(PointAtOpticalPath, IsSlowerInTheGlass) {
  EXPECT_NEAR(abscissa(axial(), 0.0), -200.0, 1e-12);
  EXPECT_NEAR(abscissa(axial(), 100.0), -100.0, 1e-12);
  EXPECT_NEAR(abscissa(axial(), 160.0 + 30.0), -20.0, 1e-12);
  EXPECT_NEAR(abscissa(axial(), 280.0 + 30.0), 70.0, 1e-12);
  EXPECT_NEAR(abscissa(axial(0.5), 160.0 + 30.0), 20.0, 1e-12);
}

TEST(PointAtOpticalPath, SaysWhichFacesTheWaveHasCrossed) {
  const auto before = pointAtOpticalPath(axial(), 100.0);
  const auto inGlass = pointAtOpticalPath(axial(), 200.0);
  const auto behind = pointAtOpticalPath(axial(), 300.0);
  ASSERT_TRUE(before && inGlass && behind);
  EXPECT_EQ(before->crossed, FacesCrossed{});
  EXPECT_EQ(inGlass->crossed, (FacesCrossed{Side::Left, Side::None}));
  EXPECT_EQ(behind->crossed, (FacesCrossed{Side::Left, Side::Right}));
}

TEST(PointAtOpticalPath, IsNothingBeforeTheStartAndBeyondTheEnd) {
  EXPECT_FALSE(pointAtOpticalPath(axial(), -0.001));
  EXPECT_TRUE(pointAtOpticalPath(axial(), 639.999));
  EXPECT_FALSE(pointAtOpticalPath(axial(), 640.001));
}

TEST(PointAtOpticalPath, CountsFromThePhase) {
  EXPECT_FALSE(pointAtOpticalPath(axial(1.5, 50.0), 49.0));
  EXPECT_NEAR(abscissa(axial(1.5, 50.0), 60.0), -190.0, 1e-12);
  EXPECT_NEAR(abscissa(axial(1.5, -50.0), 0.0), -150.0, 1e-12);
}

TEST(PointAtOpticalPath, FromVeryFarKeepsItsDigitsInTheArea) {
  const RayPath path = axial(1.5, -1e12, -1e12);
  EXPECT_NEAR(abscissa(path, -60.0), -60.0, 1e-3);
  EXPECT_NEAR(abscissa(path, -40.0 + 60.0), 0.0, 1e-3);
}

}  // namespace
}  // namespace lensbench::light
