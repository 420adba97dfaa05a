// Nothing that the scroll bars and the mouse allow makes a routine throw or draw what is not
// finite.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Named.h"
#include "optics/poreiaaktinon/Picture.h"
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

bool finite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

bool finite(const light::RayPath& path) {
  for (const light::Piece& piece : path.way()) {
    if (!finite(piece.from) || !finite(piece.to) || !finite(piece.direction) ||
        std::fabs(length(piece.direction) - 1.0) > 1e-9) {
      return false;
    }
  }
  return std::isfinite(path.phase);
}

// Everything that a workbench can show.
void drawPictures(FakeWorkbench& bench, RandomBench& random) {
  const Sent fan = send(bench.bench(), Fan{bench.source, bench.step}, testEdges);
  const Shown still{{LensScene{bench.lens, bench.n, bench.source}, Light{fan, bench.shown},
                     CardinalMarks{bench.lens, bench.n, bench.source}}};
  const Sent waves = send(bench.bench(), Desmi{random.real(-1.5, 1.5), 20}, testEdges);
  const WaveScene white{bench.lens, bench.n};
  const int step = random.whole(1, 240);
  const Shown moving{{white, Fronts{waves, step}}};
  draw(bench.surface, still);
  redraw(bench.surface, still, moving);
  redraw(bench.surface, moving, {{white, Fronts{waves, step + 1}}});
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
      drawPictures(bench, random);
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
    const Desmi desmi{degrees * std::numbers::pi / 180.0, random.whole(2, 40)};
    const Sent sent = send(bench.bench(), desmi, testEdges);
    bench.surface.forget();
    for (const light::RayPath& path : *sent.paths) ASSERT_TRUE(finite(path)) << degrees;
    ASSERT_NO_THROW(draw(bench.surface, {{Light{sent, bench.shown}}})) << degrees;
    ASSERT_LT(bench.surface.operations().size(), sent.paths->size() * 1000);
  }
}

// The single-ray screen: circle 1 about the origin, and directions that are the difference of two
// points of the mouse, so of any length, and level or vertical now and then.
TEST(RobustnessLaws, AnySingleRayIsTracedAndDrawnWithoutAnError) {
  RandomBench random(33);
  FakeWorkbench bench;
  int throughTheLens = 0;
  for (int i = 0; i < 20000; ++i) {
    Fakos f = anyLens(random);
    f.xc1 = 0.0;
    const double n = random.index();
    bench.opening = anyDiaphragm(random);
    const Point p = random.source();
    Point d = random.source() - p;
    if (i % 5 == 0) d.x = 0.0;
    if (i % 5 == 1) d.y = 0.0;
    if (i % 5 == 2) d = (1.0 / 1024.0) * d;
    if (isZero(d)) continue;

    DiadromiApotelesma meeting;
    bench.surface.forget();
    ASSERT_NO_THROW({
      diadromiaktinas(meeting, f.xc1, f.xc2, f.R1, f.R2, d.x, d.y, p.x, p.y, i);
      poreiamiasaktinas(bench.surface, p.x, p.y, d.x, d.y, i % 3, f.xc2, f.R1, f.R2, n);
      sxediasidesmis(bench.surface, p.x, p.y, d.x, d.y, f.xc1, f.xc2, f.R1, f.R2, n);
      sxediasikymaton(bench.surface, p.x, p.y, d.x, d.y, f.xc1, f.xc2, f.R1, f.R2, n);
    }) << f.R1
       << " " << f.xc2 << " " << f.R2 << " n=" << n << " case " << i;
    ASSERT_TRUE(finite(Point{meeting.x, meeting.y})) << i;
    ASSERT_TRUE(meeting.found != 0 || (meeting.x == p.x && meeting.y == p.y)) << i;
    throughTheLens += meeting.found != 0 ? 1 : 0;
    ASSERT_TRUE(finite(tracePath({f, n, bench.opening}, p, d))) << i;
    ASSERT_GE(bench.surface.operations(Operation::Kind::Line).size(), 2u) << i;
    ASSERT_LT(bench.surface.operations().size(), 1000u) << i;
  }
  EXPECT_GT(throughTheLens, 1000);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
