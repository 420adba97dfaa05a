// Snell's law, critical angle, reversibility and the paraxial focus.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Named.h"
#include "tests/property/poreiaaktinon/RandomBench.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::Ending;
using light::Medium;
using light::RayPath;
using light::Side;

Point centreOf(const Fakos& fakos, Side face) {
  return {face == Side::Right ? fakos.xc1 : fakos.xc2, 0.0};
}

double sineAt(Point direction, Point p, Point centre) {
  return dot(direction, turned(unit(p - centre)));
}

double cosineAt(Point direction, Point p, Point centre) {
  return std::fabs(dot(direction, unit(p - centre)));
}

TEST(RefractionLaws, SnellHoldsForSingleDirections) {
  RandomBench random(1);
  int refractedRays = 0;
  int reflectedRays = 0;
  for (int i = 0; i < 2 * lawRays; ++i) {
    const Point centre{random.real(-500.0, 500.0), 0.0};
    const double r = random.real(50.0, 500.0);
    const double n = random.index();
    const Point p = centre + r * random.direction();
    const Point d = random.direction();
    const DiathlasiApotelesma out = diathlasi(d.x, d.y, p.x, p.y, centre.x, centre.y, r, n);
    const Point normal = unit(p - centre);
    const bool into = dot(d, normal) < 0.0;
    const double n1 = into ? 1.0 : n;
    const double n2 = into ? n : 1.0;
    const double sine = n1 / n2 * sineAt(d, p, centre);
    if (std::fabs(std::fabs(sine) - 1.0) < 1e-9) continue;
    ASSERT_EQ(out.ok != 0, std::fabs(sine) < 1.0);
    if (out.ok == 0) {
      ++reflectedRays;
      continue;
    }
    ++refractedRays;
    const Point beyond{out.dx, out.dy};
    ASSERT_NEAR(length(beyond), 1.0, 1e-6);
    ASSERT_NEAR(n2 * sineAt(beyond, p, centre), n1 * sineAt(d, p, centre), 1e-6);
    ASSERT_EQ(dot(beyond, normal) < 0.0, into);
  }
  EXPECT_GT(refractedRays, lawRays);
  EXPECT_GT(reflectedRays, 1000);
}

TEST(RefractionLaws, SnellHoldsAlongPathsInDouble) {
  RandomBench random(2);
  int crossings = 0;
  double worst = 0.0;
  for (int ray = 0; crossings < 2 * lawRays && ray < 40 * lawRays; ++ray) {
    const Bench setup = random.bench();
    const RayPath path = traced(setup, random.source(), random.direction());
    for (int i = 0; i + 1 < path.count; ++i) {
      const auto piece = static_cast<std::size_t>(i);
      const auto index = [&](std::size_t k) {
        return path.pieces[k].medium == Medium::Glass ? setup.n : 1.0;
      };
      const Point centre = centreOf(setup.fakos, path.meetings[piece].face);
      const Point p = path.pieces[piece].to;
      const double residual =
          index(piece) * sineAt(path.pieces[piece].direction, p, centre) -
          index(piece + 1) * sineAt(path.pieces[piece + 1].direction, p, centre);
      worst = std::max(worst, std::fabs(residual));
      ASSERT_NEAR(length(path.pieces[piece + 1].direction), 1.0, 1e-14);
      ++crossings;
    }
  }
  EXPECT_GE(crossings, 2 * lawRays);
  EXPECT_LT(worst, 1e-12);
}

TEST(RefractionLaws, TotalReflectionComesExactlyBeyondTheCriticalAngle) {
  RandomBench random(3);
  int reflectedRays = 0;
  for (int ray = 0; ray < 4 * lawRays; ++ray) {
    const Bench setup = random.bench();
    const RayPath path = traced(setup, random.source(), random.direction());
    if (path.ending != Ending::TotalReflection) continue;
    ++reflectedRays;
    // The meeting names the face that reflects; it is the one the end stands on.
    const Point end = path.end();
    const double off1 = std::fabs(length(end - Point{setup.fakos.xc1, 0.0}) - setup.fakos.R1);
    const double off2 = std::fabs(length(end - Point{setup.fakos.xc2, 0.0}) - setup.fakos.R2);
    const auto last = static_cast<std::size_t>(path.count - 1);
    const double ratio = path.pieces[last].medium == Medium::Glass ? setup.n : 1.0 / setup.n;
    const Side face = path.meetings[last].face;
    if (std::fabs(off1 - off2) > 1e-9) {
      ASSERT_EQ(face, off1 < off2 ? Side::Right : Side::Left);
    }
    const Point centre = centreOf(setup.fakos, face);
    ASSERT_GT(ratio * std::fabs(sineAt(path.pieces[last].direction, end, centre)), 1.0 - 1e-12);
  }
  EXPECT_GT(reflectedRays, 5000);
}

TEST(RefractionLaws, ARaySentBackRetracesItsPath) {
  RandomBench random(4);
  int rays = 0;
  for (int ray = 0; rays < lawRays && ray < 40 * lawRays; ++ray) {
    const Bench setup = random.bench();
    const RayPath path = traced(setup, random.source(), random.direction());
    if (path.count != 3) continue;
    // Near grazing a rounding of the direction moves the path by its inverse cosine.
    double cosine = 1.0;
    for (std::size_t i = 0; i < 2; ++i) {
      const Point centre = centreOf(setup.fakos, path.meetings[i].face);
      cosine = std::min({cosine, cosineAt(path.pieces[i].direction, path.pieces[i].to, centre),
                         cosineAt(path.pieces[i + 1].direction, path.pieces[i].to, centre)});
    }
    if (cosine < 1e-4) continue;
    ++rays;
    const Point from = path.pieces[1].to + 50.0 * path.pieces[2].direction;
    const RayPath back = traced(setup, from, -1.0 * path.pieces[2].direction);
    ASSERT_EQ(back.count, 3);
    ASSERT_EQ(back.meetings[0].face, path.meetings[1].face);
    ASSERT_EQ(back.meetings[1].face, path.meetings[0].face);
    ASSERT_LT(length(back.pieces[0].to - path.pieces[1].to) * cosine * cosine, 1e-9);
    ASSERT_LT(length(back.pieces[1].to - path.pieces[0].to) * cosine * cosine, 1e-9);
    ASSERT_LT(length(back.pieces[2].direction + path.pieces[0].direction) * cosine * cosine, 1e-9);
  }
  EXPECT_EQ(rays, lawRays);
}

TEST(RefractionLaws, ParaxialRaysOfThinLensesMeetAtTheLensmakersFocus) {
  RandomBench random(5);
  constexpr double thickness = 1e-3;
  for (int i = 0; i < lawRays; ++i) {
    const double R1 = random.real(50.0, 500.0);
    const double R2 = random.real(50.0, 500.0);
    double n = random.index();
    if (std::fabs(n - 1.0) < 0.05) n += 0.1;
    const Bench setup{{thickness - R1, R1, R2, R2}, n, std::nullopt};
    const double height = random.real(0.01, 0.1);
    const RayPath path = traced(setup, {-30.0, height}, {1.0, 0.0});
    ASSERT_EQ(path.count, 3);
    const Point out = path.pieces[2].direction;
    const double crossing = path.pieces[1].to.x - path.pieces[1].to.y * out.x / out.y;
    const double f = estiakiapostasi(R1, R2, n).value();
    ASSERT_NEAR(crossing / f, 1.0, 1e-4) << R1 << " " << R2 << " " << n;
  }
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
