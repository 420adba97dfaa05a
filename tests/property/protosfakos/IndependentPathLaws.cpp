// Each path against another construction.
#include <gtest/gtest.h>

#include "tests/property/protosfakos/IndependentPath.h"
#include "tests/property/protosfakos/RandomRays.h"

namespace lensbench::protosfakos {
namespace {

using independent::apart;
using independent::Expected;
using independent::Lens;

TEST(IndependentPath, AgreesForRaysThroughBothLenses) {
  RandomRays random(31);
  Largest points, directions;
  int compared = 0, emerged = 0, skipped = 0, endings[5] = {};
  while (compared < 2 * lawRays) {
    const double n = random.index();
    const light::Lens glass = random.glass(n);
    const light::Ray ray = random.ray(glass);
    const Lens lens{semiAxis, bOf(glass), n, isBiconvex(glass)};
    const Expected expected =
        construct(lens, {ray.start.x, ray.start.y}, {ray.direction.x, ray.direction.y});
    const Way path = wayThrough(glass, ray, wideOpen);
    if (expected.margin < 1e-4L) {
      ++skipped;
      continue;
    }
    ++compared;
    ++endings[static_cast<int>(path.ending)];
    ASSERT_EQ(path.ending, expected.ending)
        << n << " from " << ray.start.x << ' ' << ray.start.y << " along " << ray.direction.x << ' '
        << ray.direction.y << " margin " << static_cast<double>(expected.margin);
    if (path.ending == End::Missed) continue;
    points.meet(apart(expected.entry, path.entry));
    points.meet(apart(expected.exit, path.exit));
    directions.meet(apart(expected.inside, path.inside));
    if (path.ending != End::Emerged) continue;
    ++emerged;
    directions.meet(apart(expected.emerging, path.emerging));
  }
  EXPECT_LT(points.value, 1e-9);
  EXPECT_LT(directions.value, 1e-9);
  EXPECT_GT(emerged, lawRays / 2);
  EXPECT_LT(skipped, lawRays / 50);
  for (const End ending : {End::TotalReflection, End::Trapped, End::Missed}) {
    EXPECT_GT(endings[static_cast<int>(ending)], 100) << static_cast<int>(ending);
  }
  RecordProperty("points", std::to_string(points.value * 1e12) + "e-12");
  RecordProperty("directions", std::to_string(directions.value * 1e12) + "e-12");
  RecordProperty("skipped", skipped);
}

}  // namespace
}  // namespace lensbench::protosfakos
