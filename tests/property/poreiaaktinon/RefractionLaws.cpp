// Snell's law, critical angle, reversibility and the paraxial focus.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Refraction.h"
#include "tests/property/poreiaaktinon/RandomBench.h"

namespace lensbench::poreiaaktinon {
namespace {

Point centreOf(const Fakos& fakos, Face face) {
  return {face == Face::Right ? fakos.xc1 : fakos.xc2, 0.0};
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
    const OpticalSetup setup = random.setup();
    const RayPath path = tracePath(setup, random.source(), random.direction());
    for (int i = 0; i + 1 < path.pieces; ++i) {
      const auto piece = static_cast<std::size_t>(i);
      const auto index = [&](std::size_t k) {
        return path.regions[k] == Region::Glass ? setup.n : 1.0;
      };
      const Point centre = centreOf(setup.fakos, path.faces[piece]);
      const Point p = path.points[piece + 1];
      const double residual = index(piece) * sineAt(path.directions[piece], p, centre) -
                              index(piece + 1) * sineAt(path.directions[piece + 1], p, centre);
      worst = std::max(worst, std::fabs(residual));
      ASSERT_NEAR(length(path.directions[piece + 1]), 1.0, 1e-14);
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
    const OpticalSetup setup = random.setup();
    const RayPath path = tracePath(setup, random.source(), random.direction());
    if (path.ending != Ending::TotalReflection) continue;
    ++reflectedRays;
    // The faces crossed do not name the one that reflects; it is the one the end stands on.
    const Point end = path.end();
    const double off1 = std::fabs(length(end - Point{setup.fakos.xc1, 0.0}) - setup.fakos.R1);
    const double off2 = std::fabs(length(end - Point{setup.fakos.xc2, 0.0}) - setup.fakos.R2);
    const auto last = static_cast<std::size_t>(path.pieces - 1);
    const double ratio = path.regions[last] == Region::Glass ? setup.n : 1.0 / setup.n;
    const Point centre = centreOf(setup.fakos, off1 < off2 ? Face::Right : Face::Left);
    ASSERT_GT(ratio * std::fabs(sineAt(path.directions[last], end, centre)), 1.0 - 1e-12);
  }
  EXPECT_GT(reflectedRays, 5000);
}

TEST(RefractionLaws, ARaySentBackRetracesItsPath) {
  RandomBench random(4);
  int rays = 0;
  for (int ray = 0; rays < lawRays && ray < 40 * lawRays; ++ray) {
    const OpticalSetup setup = random.setup();
    const RayPath path = tracePath(setup, random.source(), random.direction());
    if (path.pieces != 3) continue;
    // Near grazing a rounding of the direction moves the path by its inverse cosine.
    double cosine = 1.0;
    for (std::size_t i = 0; i < 2; ++i) {
      const Point centre = centreOf(setup.fakos, path.faces[i]);
      cosine = std::min({cosine, cosineAt(path.directions[i], path.points[i + 1], centre),
                         cosineAt(path.directions[i + 1], path.points[i + 1], centre)});
    }
    if (cosine < 1e-4) continue;
    ++rays;
    const Point from = path.points[2] + 50.0 * path.directions[2];
    const RayPath back = tracePath(setup, from, -1.0 * path.directions[2]);
    ASSERT_EQ(back.pieces, 3);
    ASSERT_EQ(back.faces[0], path.faces[1]);
    ASSERT_EQ(back.faces[1], path.faces[0]);
    ASSERT_LT(length(back.points[1] - path.points[2]) * cosine * cosine, 1e-9);
    ASSERT_LT(length(back.points[2] - path.points[1]) * cosine * cosine, 1e-9);
    ASSERT_LT(length(back.directions[2] + path.directions[0]) * cosine * cosine, 1e-9);
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
    const OpticalSetup setup{{thickness - R1, R1, R2, R2}, n, std::nullopt, RandomBench::edges};
    const double height = random.real(0.01, 0.1);
    const RayPath path = tracePath(setup, {-30.0, height}, {1.0, 0.0});
    ASSERT_EQ(path.pieces, 3);
    const Point out = path.directions[2];
    const double crossing = path.points[2].x - path.points[2].y * out.x / out.y;
    const double f = estiakiapostasi(R1, R2, n).value();
    ASSERT_NEAR(crossing / f, 1.0, 1e-4) << R1 << " " << R2 << " " << n;
  }
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
