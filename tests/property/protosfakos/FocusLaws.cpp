// A hyperbola whose eccentricity is the index brings light that is parallel in the glass to one
// point, with equal optical path.
#include <gtest/gtest.h>

#include "tests/property/protosfakos/RandomRays.h"

namespace lensbench::protosfakos {
namespace {

// How far the line of a ray passes from a point.
double missDistance(Point on, Point direction, Point p) { return cross(direction, p - on); }

TEST(Focus, AxialBundleMeetsInTheFarFocusWithEqualOpticalPath) {
  RandomRays random(11);
  Largest miss, optical;
  for (int i = 0; i < lawRays; ++i) {
    const double n = random.index();
    const auto [a, b, c] = *deriveLens(n);
    const light::Lens glass = planoConvex(a, b, n);
    const double y = random.between(-1, 1) * rimHalfHeight(b);
    const Way path = wayThrough(glass, rayWithSlope({130, y}, 0, Travel::Left), wideOpen);
    if (path.ending != End::Emerged) {
      // Only where the lens is thinner than can be told from nothing.
      ASSERT_GT(std::fabs(y), rimHalfHeight(b) * (1 - 1e-8));
      continue;
    }
    miss.meet(missDistance(path.exit, path.emerging, {-c, 0}));
    const double toFocus = dot(Point{-c, 0} - path.exit, path.emerging);
    ASSERT_GT(toFocus, 0.0);
    // From the plane x = 130 to the focus; on the axis 82 + 36·n + a + c.
    const double whole = (130 - path.entry.x) + n * length(path.exit - path.entry) + toFocus;
    optical.meet(whole - (82 + 36 * n + a + c));
  }
  EXPECT_LT(miss.value, 1e-9);
  EXPECT_LT(optical.value, 1e-9);
  RecordProperty("miss", std::to_string(miss.value * 1e12) + "e-12");
  RecordProperty("optical", std::to_string(optical.value * 1e12) + "e-12");
}

TEST(Focus, SourceAtTheFarFocusGivesParallelRaysInside) {
  RandomRays random(12);
  Largest error;
  int entered = 0;
  while (entered < lawRays) {
    const double n = random.index();
    const auto [a, b, c] = *deriveLens(n);
    const light::Lens glass = random.glass(n);
    const Way path = wayThrough(
        glass, rayWithSlope({-c, 0}, random.between(-1.2, 1.2), Travel::Right), wideOpen);
    if (path.ending == End::Missed || !path.entryNormal) continue;
    ++entered;
    error.meet(path.inside.y);
  }
  EXPECT_LT(error.value, 1e-12);
  RecordProperty("largest", std::to_string(error.value * 1e15) + "e-15");
}

TEST(Focus, BiconvexImagesOneFarFocusOnTheOtherAndBack) {
  RandomRays random(13);
  Largest miss, optical;
  int imaged = 0;
  while (imaged < lawRays) {
    const double n = random.index();
    const auto [a, b, c] = *deriveLens(n);
    const light::Lens glass = biconvex(a, b, n);
    const bool back = imaged % 2 == 1;
    const Point near{8 * a + c, 0}, far{-c, 0};
    const light::Ray ray = back ? rayWithSlope(far, random.between(-1.2, 1.2), Travel::Right)
                                : rayWithSlope(near, random.between(-1.2, 1.2), Travel::Left);
    const Way path = wayThrough(glass, ray, wideOpen);
    if (path.ending == End::Missed) continue;
    ++imaged;
    ASSERT_EQ(path.ending, End::Emerged);
    const Point image = back ? near : far;
    miss.meet(missDistance(path.exit, path.emerging, image));
    const double whole = length(path.entry - ray.start) + n * length(path.exit - path.entry) +
                         dot(image - path.exit, path.emerging);
    optical.meet(whole - 2 * (a + c) - 72 * n);
  }
  EXPECT_LT(miss.value, 1e-6);
  EXPECT_LT(optical.value, 1e-6);
  RecordProperty("miss", std::to_string(miss.value * 1e12) + "e-12");
  RecordProperty("optical", std::to_string(optical.value * 1e12) + "e-12");
}

}  // namespace
}  // namespace lensbench::protosfakos
