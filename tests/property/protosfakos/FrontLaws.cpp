// Points of one front have equal optical path, and the fronts of a bundle are square to its rays.
#include <gtest/gtest.h>
#include <numbers>

#include "tests/property/protosfakos/RandomRays.h"
#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

double distance(Point p, Point q) { return length(q - p); }

// The optical path from the start to a point on the ray, told from where it lies. start is the
// point on the ray at path 0.
double opticalPath(const Way& path, Point start, double n, Point p) {
  const double before = distance(start, path.entry);
  const double inside = n * distance(path.entry, path.exit);
  if (distance(start, p) + distance(p, path.entry) < before + 1e-9) return distance(start, p);
  if (distance(path.entry, p) + distance(p, path.exit) < inside / n + 1e-9) {
    return before + n * distance(path.entry, p);
  }
  return before + inside + distance(path.exit, p);
}

// Takes the errors of the points of one recorded ray: in optical path from start, and, behind the
// lens, in the distance from the ray.
void meetPoints(const Way& path, Point start, double n, const Recorded& ray, Largest& error,
                Largest& off) {
  const double through = distance(start, path.entry) + n * distance(path.entry, path.exit);
  for (int j = 1; j <= 30; ++j) {
    const Point p = ray.kymata[static_cast<std::size_t>(j)];
    const double length = 4.0 * (j - 1);
    error.meet(opticalPath(path, start, n, p) - length);
    if (distance(path.exit, p) > 1e-9 && dot(p - path.exit, path.emerging) > 0 &&
        length > through) {
      off.meet(cross(path.emerging, p - path.exit));
    }
  }
}

TEST(Fronts, PointsOfOneFrontHaveEqualOpticalPath) {
  RandomRays random(21);
  Largest error, off;
  int rays = 0;
  while (rays < lawRays) {
    const double n = random.index();
    SahlBench bench(n);
    bench.asked.onlyRays = true;
    const bool amfikyrtos = rays % 2 == 0;
    const Point source{random.between(-120, 150), random.between(-60, 60)};
    bench.fan(amfikyrtos, source.x, source.y);
    const light::Lens glass = (amfikyrtos ? biconvex : planoConvex)(12, bench.lens.b, n);
    int recorded = 0;
    for (int i = 0; i <= 60; ++i) {
      const light::Ray ray =
          rayWithSlope(source, (90 - 3 * i) / 100.0, source.x < 12 ? Travel::Right : Travel::Left);
      const Way path = wayThrough(glass, ray, wideOpen);
      if (path.ending != End::Emerged) continue;
      meetPoints(path, source, n, bench.ray(recorded++), error, off);
    }
    ASSERT_EQ(recorded, bench.recorded());
    rays += 61;
  }
  EXPECT_LT(error.value, 2e-5);
  EXPECT_LT(off.value, 2e-5);
  RecordProperty("path", std::to_string(error.value * 1e6) + "e-6");
  RecordProperty("off", std::to_string(off.value * 1e6) + "e-6");
}

TEST(Fronts, OfABundleHaveEqualOpticalPathFromThePlaneAlsoInAndBehindTheGlass) {
  Largest error, off;
  int rays = 0, behind = 0;
  for (const bool amfikyrtos : {false, true}) {
    for (const double n : {1.01, 1.33, 1.5, 2.5}) {
      const light::Lens glass = (amfikyrtos ? biconvex : planoConvex)(12, deriveLens(n)->b, n);
      for (int degrees = -89; degrees <= 89; ++degrees) {
        SahlBench bench(n);
        const double slope = std::tan(std::numbers::pi * degrees / 180);
        bench.bundle(amfikyrtos, slope);
        int recorded = 0;
        for (int y = 100; y >= -100; y -= amfikyrtos ? 1 : 2) {
          const light::Ray ray = rayWithSlope({130.0, static_cast<double>(y)}, slope, Travel::Left);
          const Way path = wayThrough(glass, ray, wideOpen);
          if (path.ending != End::Emerged) continue;
          const double beforeEntry = dot(path.entry - Point{130, 0}, ray.direction);
          behind += beforeEntry < 0.0;
          meetPoints(path, path.entry - beforeEntry * ray.direction, n, bench.ray(recorded++),
                     error, off);
        }
        ASSERT_EQ(recorded, bench.recorded());
        rays += recorded;
      }
    }
  }
  EXPECT_GT(rays, 40'000);
  EXPECT_EQ(behind, 0);
  EXPECT_LT(error.value, 2e-5);
  EXPECT_LT(off.value, 2e-5);
  RecordProperty("rays", rays);
  RecordProperty("path", std::to_string(error.value * 1e6) + "e-6");
  RecordProperty("off", std::to_string(off.value * 1e6) + "e-6");
}

TEST(Fronts, OfABundleAreSquareToItsRaysBeforeTheLens) {
  Largest error;
  int pairs = 0;
  for (const bool amfikyrtos : {false, true}) {
    for (const double n : {1.01, 1.33, 1.5, 2.5}) {
      for (int degrees = -60; degrees <= 60; ++degrees) {
        SahlBench bench(n);
        const double slope = std::tan(std::numbers::pi * degrees / 180);
        bench.bundle(amfikyrtos, slope);
        const Point along = rayWithSlope({}, slope, Travel::Left).direction;
        const auto isBefore = [&](int ray, int front) {
          return dot(bench.ray(ray).entry - bench.kymata(ray, front), along) > 1e-9;
        };
        for (int i = 1; i < bench.recorded(); ++i) {
          for (int j = 1; j <= 30; ++j) {
            if (!isBefore(i, j) || !isBefore(i - 1, j)) continue;
            ++pairs;
            error.meet(dot(bench.kymata(i, j) - bench.kymata(i - 1, j), along));
            // And 4 behind the front before it, counted from the plane through (130, 0).
            error.meet(dot(bench.kymata(i, j) - Point{130, 0}, along) - 4.0 * (j - 1));
          }
        }
      }
    }
  }
  EXPECT_GT(pairs, 100'000);
  EXPECT_LT(error.value, 1e-9);
  RecordProperty("largest", std::to_string(error.value * 1e12) + "e-12");
}

}  // namespace
}  // namespace lensbench::protosfakos
