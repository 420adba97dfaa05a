// The rays of a fan and of a parallel bundle.
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Bundles.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

const OpticalSetup bench{{-50.0, 100.0, 20.0, 90.0}, 1.5, std::nullopt, testEdges};

TEST(RayCount, IsTheWholePartOf360OverTheStep) {
  EXPECT_EQ(rayCount(pi * 30.0 / 20.0), 76);
  EXPECT_EQ(rayCount(pi * 30.0 / 140.0), 534);
  EXPECT_EQ(rayCount(pi * 5.0 / 150.0), 3437);
  EXPECT_EQ(rayCount(pi * 150.0 / 2.0), 1);
}

TEST(FanPaths, RayKLeavesAtKSteps) {
  const double vima = pi * 30.0 / 20.0;
  const auto paths = fanPaths(bench, {-200.0, 30.0}, vima);
  ASSERT_EQ(paths.size(), 76u);
  for (std::size_t k = 0; k < paths.size(); ++k) {
    const double angle = static_cast<double>(k) * vima * pi / 180.0;
    EXPECT_NEAR(paths[k].directions[0].x, std::cos(angle), 1e-15);
    EXPECT_NEAR(paths[k].directions[0].y, std::sin(angle), 1e-15);
    EXPECT_EQ(paths[k].points[0].x, -200.0);
    EXPECT_EQ(paths[k].points[0].y, 30.0);
    EXPECT_EQ(paths[k].phase, 0.0);
  }
}

TEST(BundlePaths, HasOneRayMoreThanItsDivisor) {
  for (const int desmi1 : {2, 3, 20, 149, 150}) {
    const auto paths = bundlePaths(bench, 0.0, desmi1);
    ASSERT_EQ(paths.size(), static_cast<std::size_t>(desmi1) + 1);
    EXPECT_EQ(paths.front().points[0].y, 200.0);
    EXPECT_NEAR(paths.back().points[0].y, -200.0, 1e-12);
  }
}

TEST(BundlePaths, StartsAndPhasesAtAnAngle) {
  const double angle = 0.4;
  const auto paths = bundlePaths(bench, angle, 20);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const double k = 200.0 - 20.0 * static_cast<double>(i);
    EXPECT_NEAR(paths[i].points[0].x, -200.0 - k * std::tan(angle), 1e-12);
    EXPECT_NEAR(paths[i].points[0].y, k / std::cos(angle), 1e-12);
    EXPECT_NEAR(paths[i].phase, k * std::sin(angle) * (1.0 / std::cos(angle) - 1.0), 1e-10);
    EXPECT_NEAR(length(paths[i].directions[0]), 1.0, 1e-15);
  }
}

TEST(BundlePaths, StaysFiniteAtEveryAngle) {
  for (const double degrees : {90.0, -90.0, 120.0, 180.0, 270.0, 89.999999, 1e6}) {
    for (const RayPath& path : bundlePaths(bench, degrees * pi / 180.0, 20)) {
      EXPECT_TRUE(std::isfinite(path.phase));
      for (int i = 0; i <= path.pieces; ++i) {
        EXPECT_TRUE(std::isfinite(path.points[static_cast<std::size_t>(i)].x));
        EXPECT_TRUE(std::isfinite(path.points[static_cast<std::size_t>(i)].y));
      }
    }
  }
}

TEST(BundlePaths, MiddleRayAt90DegreesRunsUpFromItsStart) {
  const RayPath middle = bundlePaths(bench, pi / 2.0, 20)[10];
  EXPECT_EQ(middle.points[0].x, -200.0);
  EXPECT_NEAR(middle.end().x, -200.0, 1e-9);
  EXPECT_EQ(middle.end().y, 200.0);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
