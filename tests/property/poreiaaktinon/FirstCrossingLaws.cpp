// The first crossing against an independent construction; points of a path lie on the faces.
#include <cmath>
#include <gtest/gtest.h>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/property/poreiaaktinon/IndependentTrace.h"
#include "tests/property/poreiaaktinon/RandomBench.h"

namespace lensbench::poreiaaktinon {
namespace {

bool nearACircle(const Fakos& fakos, Point p) {
  const double off1 = std::fabs(length(p - Point{fakos.xc1, 0.0}) / fakos.R1 - 1.0);
  const double off2 = std::fabs(length(p - Point{fakos.xc2, 0.0}) / fakos.R2 - 1.0);
  return off1 <= 0.00051 || off2 <= 0.00051;
}

// Whether a point stands on both circles at once: there rounding decides which face it is on, and
// the two constructions need not agree.
bool nearTheRim(const Fakos& fakos, long double x, long double y) {
  const long double off1 = std::fabs(std::hypot(x - fakos.xc1, y) - fakos.R1);
  const long double off2 = std::fabs(std::hypot(x - fakos.xc2, y) - fakos.R2);
  return off1 < 1e-9L && off2 < 1e-9L;
}

TEST(FirstCrossingLaws, AgreesWithAParametricConstruction) {
  RandomBench random(11);
  int found = 0;
  int compared = 0;
  constexpr int rays = 6 * lawRays;
  for (int i = 0; i < rays; ++i) {
    const Fakos fakos = random.lens();
    const Point p = random.source();
    // A quarter of the rays is steep or vertical.
    Point d = random.direction();
    if (i % 8 == 0) d = {0.0, d.y < 0.0 ? -1.0 : 1.0};
    if (i % 8 == 1) d = unit({random.real(-0.01, 0.01), d.y < 0.0 ? -1.0 : 1.0});
    if (nearACircle(fakos, p)) continue;
    const auto expected = firstMeeting(fakos, p.x, p.y, d.x, d.y, 0.0L);
    if (expected && (expected->halfChord < 1e-3L || nearTheRim(fakos, expected->x, expected->y))) {
      continue;
    }
    ++compared;
    DiadromiApotelesma result;
    diadromiaktinas(result, fakos.xc1, fakos.xc2, fakos.R1, fakos.R2, d.x, d.y, p.x, p.y, i % 100);
    ASSERT_EQ(result.found != 0, expected.has_value()) << i;
    ASSERT_EQ(result.tag, i % 100);
    if (!expected) {
      ASSERT_EQ(result.x, p.x);
      ASSERT_EQ(result.y, p.y);
      continue;
    }
    ++found;
    ASSERT_NEAR(result.x, static_cast<double>(expected->x), 1e-9);
    ASSERT_NEAR(result.y, static_cast<double>(expected->y), 1e-9);
  }
  EXPECT_GT(compared, rays * 97 / 100);
  EXPECT_GT(found, lawRays);
}

TEST(FirstCrossingLaws, PointsOfAPathLieOnTheFaces) {
  RandomBench random(12);
  int points = 0;
  for (int ray = 0; points < 2 * lawRays && ray < 40 * lawRays; ++ray) {
    const Bench setup = random.bench();
    const light::RayPath path = traced(setup, random.source(), random.direction());
    const Point centre1{setup.fakos.xc1, 0.0};
    const Point centre2{setup.fakos.xc2, 0.0};
    for (std::size_t i = 0; i + 1 < static_cast<std::size_t>(path.count); ++i) {
      const double off1 = length(path.pieces[i].to - centre1) - setup.fakos.R1;
      const double off2 = length(path.pieces[i].to - centre2) - setup.fakos.R2;
      ASSERT_NEAR(path.meetings[i].face == light::Side::Right ? off1 : off2, 0.0, 1e-9);
      ASSERT_LT(path.meetings[i].face == light::Side::Right ? off2 : off1, 1e-9);
      ++points;
    }
  }
  EXPECT_GE(points, 2 * lawRays);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
