// Nothing that the scroll bars and the mouse allow makes a routine throw or draw what is not
// finite.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/poreiaaktinon/Bundles.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Tracing.h"
#include "tests/property/poreiaaktinon/RandomBench.h"
#include "tests/unit/poreiaaktinon/FakeWorkbench.h"

namespace lensbench::poreiaaktinon {
namespace {

Diafragma anyDiaphragm(RandomBench& random) {
  const double one = random.real(-200.0, 200.0);
  const double two = random.real(-200.0, 200.0);
  return {static_cast<double>(random.whole(-100, 100)) * 3.84, std::max(one, two),
          std::min(one, two)};
}

// Corners of the ranges as often as values within them.
Fakos anyLens(RandomBench& random) {
  Fakos fakos = random.anyLens();
  const auto corner = [&random](double& value, double low, double high) {
    const int choice = random.whole(0, 5);
    if (choice == 0) value = low;
    if (choice == 1) value = high;
  };
  corner(fakos.R1, 50.0, 500.0);
  corner(fakos.R2, 0.0, 500.0);
  corner(fakos.xc1, -500.0, 0.0);
  corner(fakos.xc2, 0.0, 500.0);
  return fakos;
}

bool finite(const RayPath& path) {
  for (std::size_t i = 0; i <= static_cast<std::size_t>(path.pieces); ++i) {
    if (!std::isfinite(path.points[i].x) || !std::isfinite(path.points[i].y)) return false;
  }
  return std::isfinite(path.phase);
}

TEST(RobustnessLaws, AnyWorkbenchIsDrawnWithoutAnError) {
  RandomBench random(31);
  FakeWorkbench bench;
  bench.shown = {true, true};
  bench.step = 20.0;  // 18 rays
  for (int i = 0; i < 10000; ++i) {
    bench.lens = anyLens(random);
    bench.n = random.index();
    bench.opening = anyDiaphragm(random);
    bench.source = random.source();
    if (i % 3 == 0) bench.source = {std::round(bench.source.x), 0.0};
    bench.surface.forget();
    const Fakos& f = bench.lens;
    ASSERT_NO_THROW({
      sxediasitoxou1(f.xc1, f.R1, f.xc2, f.R2, 0, 0);
      sxediasitoxou2(f.xc1, f.R1, f.xc2, f.R2, 0, 0, 0);
      bentaliaaktinon(f.xc1, f.xc2, f.R1, f.R2, bench.source.x, bench.source.y);
      if (hasCardinalPoints(f, bench.n)) {
        const CardinalPoints points = cardinalPoints(f, bench.n);
        drawCardinalMarks(bench.surface, points);
        if (canConstruct(points, bench.source)) {
          drawConstruction(bench.surface, points, bench.source);
        }
        drawCardinalLabels(bench.surface, points);
      }
    }) << f.xc1
       << " " << f.R1 << " " << f.xc2 << " " << f.R2 << " n=" << bench.n;
  }
}

TEST(RobustnessLaws, BundlesAtAnyAngleStayFiniteAndDraw) {
  RandomBench random(32);
  FakeWorkbench bench;
  bench.shown = {true, true};
  for (int i = 0; i < 5000; ++i) {
    bench.lens = anyLens(random);
    bench.n = random.index();
    bench.opening = anyDiaphragm(random);
    const double degrees = i % 4 == 0 ? 90.0 * random.whole(-8, 8) : random.real(-360.0, 360.0);
    const auto paths =
        bundlePaths(setupOf(bench), degrees * std::numbers::pi / 180.0, random.whole(2, 40));
    bench.surface.forget();
    for (const RayPath& path : paths) ASSERT_TRUE(finite(path)) << degrees;
    ASSERT_NO_THROW(drawPaths(bench.surface, paths, bench.shown)) << degrees;
    ASSERT_LT(bench.surface.operations().size(), paths.size() * 1000);
  }
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
