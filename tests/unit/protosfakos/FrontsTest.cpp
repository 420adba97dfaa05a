// Wave points of one ray, the fronts of a scene, and their bounds.
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "tests/support/ErrorNumber.h"
#include "tests/unit/protosfakos/SahlBench.h"

namespace lensbench::protosfakos {
namespace {

// A ray along the axis from (100, 0): 10 in air, 8 in glass of index 2, then on at an angle.
Recorded axialRay() {
  Recorded ray;
  ray.entry = {90, 0};
  ray.exit = {82, 0};
  ray.directionX = 3.0F;  // negated and not of length 1: the ray goes along (-0.6, -0.8)
  ray.directionY = 4.0F;
  return ray;
}

void expectPoint(const Recorded& ray, std::size_t front, double x, double y) {
  EXPECT_NEAR(ray.kymata[front].x, x, 1e-12) << front;
  EXPECT_NEAR(ray.kymata[front].y, y, 1e-12) << front;
}

TEST(Kymata, LieAtEqualOpticalPath) {
  Recorded ray = axialRay();
  layFronts(ray, {100, 0}, 2.0);
  expectPoint(ray, 0, 100, 0);
  expectPoint(ray, 1, 100, 0);
  expectPoint(ray, 2, 96, 0);
  expectPoint(ray, 3, 92, 0);
  expectPoint(ray, 4, 89, 0);  // path 12: 2 beyond the entry, 1 in the glass
  expectPoint(ray, 5, 87, 0);
  expectPoint(ray, 7, 83, 0);                   // path 24
  expectPoint(ray, 8, 82 - 0.6 * 2, -0.8 * 2);  // path 28, 26 at the exit
  expectPoint(ray, 30, 82 - 0.6 * 90, -0.8 * 90);
}

TEST(Kymata, StartOnTheEntryPoint) {
  Recorded ray = axialRay();
  layFronts(ray, {90, 0}, 2.0);
  expectPoint(ray, 1, 90, 0);
  expectPoint(ray, 2, 88, 0);
}

TEST(Kymata, AreCountedFromAnyStart) {
  Recorded ray = axialRay();
  layFronts(ray, {94, 3}, 2.0);
  expectPoint(ray, 0, 94, 3);
  expectPoint(ray, 2, 94 - 0.8 * 4, 3 - 0.6 * 4);
  expectPoint(ray, 3, 88.5, 0);
  layFronts(ray, {}, 2.0);
  expectPoint(ray, 0, 0, 0);
  expectPoint(ray, 2, 4, 0);
  expectPoint(ray, 23, 88, 0);
}

TEST(Kymata, IndexOutsideTheArraysIsAnError) {
  const std::vector<Recorded> rays{axialRay()};
  EXPECT_EQ(errorNumber([&] { kymataX(rays, 601, 0); }), 9);
  EXPECT_EQ(errorNumber([&] { kymataX(rays, -1, 0); }), 9);
  EXPECT_EQ(errorNumber([&] { kymataX(rays, 600, 31); }), 9);
  EXPECT_EQ(errorNumber([&] { kymataY(rays, 0, -1); }), 9);
  EXPECT_EQ(errorNumber([&] { kymataY(rays, 600, 30); }), 0);
  EXPECT_TRUE(kymataY(rays, 600, 30).isEmpty());
  EXPECT_FALSE(kymataX(rays, 0, 30).isEmpty());
}

TEST(Kymata, IndexZeroIsDivisionByZero) {
  Recorded ray = axialRay();
  EXPECT_EQ(errorNumber([&] { layFronts(ray, {100, 0}, 0.0); }), 11);
}

TEST(Kymata, OnlyANegativeIndexMakesALengthNegative) {
  EXPECT_TRUE(arnhtiko(axialRay(), -2.0));
  EXPECT_FALSE(arnhtiko(axialRay(), 2.0));
}

TEST(Kymata, NoScenesAreToldOfNegativeLengths) {
  SahlBench bench(2.5);
  for (const bool amfikyrtos : {false, true}) {
    for (int degrees = -85; degrees <= 85; degrees += 5) {
      bench.bundle(amfikyrtos, std::tan(degrees * 0.017453292519943295));
      EXPECT_FALSE(bench.scene.traced->arnhtiko) << degrees;
    }
    bench.fan(amfikyrtos, 108, 25);
    EXPECT_FALSE(bench.scene.traced->arnhtiko);
  }
}

TEST(Recorded, IsWhatALeavingRayPassesOnItsWay) {
  SahlBench bench;
  bench.fan(false, 108, 25);
  std::size_t k = 0;
  for (const light::RayPath& path : bench.scene.traced->paths) {
    if (!emerged(path)) continue;
    const Way way = wayOf(path);
    const Recorded& ray = bench.scene.traced->recorded.at(k++);
    EXPECT_EQ(ray.entry.x, way.entry.x);
    EXPECT_EQ(ray.entry.y, way.entry.y);
    EXPECT_EQ(ray.exit.x, way.exit.x);
    EXPECT_EQ(ray.exit.y, way.exit.y);
    EXPECT_EQ(ray.directionX, static_cast<float>(-way.emerging.x));
    EXPECT_EQ(ray.directionY, static_cast<float>(-way.emerging.y));
  }
  EXPECT_EQ(static_cast<int>(k), bench.recorded());
  EXPECT_EQ(bench.scene.traced->paths.size(), 61u);
}

TEST(Fronts, JoinNeighbouringRaysFrontByFront) {
  SahlBench bench;
  bench.asked.onlyWaves = true;
  bench.fan(false, 108, 25);
  const auto& ops = bench.operations();
  const int rays = bench.recorded();
  ASSERT_GT(rays, 10);
  std::size_t at = ops.size() - static_cast<std::size_t>(30 * (rays - 1));
  for (int j = 1; j <= 30; ++j) {
    for (int i = 1; i < rays; ++i, ++at) {
      EXPECT_EQ(ops[at].x1, bench.kymata(i - 1, j).x);
      EXPECT_EQ(ops[at].y1, bench.kymata(i - 1, j).y);
      EXPECT_EQ(ops[at].x2, bench.kymata(i, j).x);
      EXPECT_EQ(ops[at].y2, bench.kymata(i, j).y);
      EXPECT_EQ(ops[at].colour, RGB(0, 0, 255));
    }
  }
}

TEST(Fronts, FewerThanTwoRaysHaveNone) {
  SahlBench bench(1.0);
  bench.asked.onlyWaves = true;
  for (const double y : {0.0, 25.0}) {
    bench.recording.forget();
    bench.fan(false, 108, y);
    ASSERT_EQ(bench.recorded(), y == 0.0 ? 1 : 0);
    for (const Operation& op : bench.operations()) EXPECT_NE(op.colour, RGB(0, 0, 255));
  }
}

TEST(Fronts, StandUprightBehindThePlaneForASourceAtTheFarFocus) {
  SahlBench bench(1.5);
  bench.fan(false, -18, 0);
  ASSERT_GT(bench.recorded(), 20);
  // Optical path 12·(n + 1) = 30 reaches the vertex; from 30 + 1.5·36 on all points are behind it.
  for (int j = 10; j <= 30; ++j) {
    const double path = 4.0 * (j - 1);
    const double x = path <= 84 ? 12 + (path - 30) / 1.5 : 48 + path - 84;
    for (int k = 0; k < bench.recorded(); ++k) {
      if (bench.ray(k).entry.x > x) continue;
      EXPECT_NEAR(bench.kymata(k, j).x, x, 2e-5) << j << ' ' << k;
    }
  }
}

}  // namespace
}  // namespace lensbench::protosfakos
