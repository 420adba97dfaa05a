// The spherical optics beside the bare vector form of the same refractions: one ray through both
// faces, the largest fan, its wave points, and what it answers.
#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

#include "bench/Compare.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Ask.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Rays.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr Fakos startLens{-50.0, 100.0, 20.0, 90.0};
constexpr light::Edges edges{-384.0, 384.0, -216.0, 216.0};
const Bench bench{startLens, 1.5, Diafragma{0.0, 60.0, -60.0}};

// Rays that all go through both faces.
std::vector<Point> throughTheLens() {
  std::vector<Point> directions;
  directions.reserve(1000);
  for (int i = 0; i < 1000; ++i) directions.push_back(unit({1.0, -0.2 + 0.0004 * i}));
  return directions;
}

// Entry by circle 2, exit by circle 1, no question asked.
double bareRay(Point p, Point d, double n) {
  const Point centre2{startLens.xc2, 0.0};
  Point away = p - centre2;
  double b = dot(away, d);
  p = p + (-b - std::sqrt(b * b - dot(away, away) + startLens.R2 * startLens.R2)) * d;
  Point normal = (1.0 / startLens.R2) * (p - centre2);
  double cosine = -dot(normal, d);
  double ratio = 1.0 / n;
  d = ratio * d +
      (ratio * cosine - std::sqrt(1.0 - ratio * ratio * (1.0 - cosine * cosine))) * normal;

  const Point centre1{startLens.xc1, 0.0};
  away = p - centre1;
  b = dot(away, d);
  p = p + (-b + std::sqrt(b * b - dot(away, away) + startLens.R1 * startLens.R1)) * d;
  normal = (-1.0 / startLens.R1) * (p - centre1);
  cosine = -dot(normal, d);
  const double rest = 1.0 - n * n * (1.0 - cosine * cosine);
  if (rest < 0.0) return p.y;
  d = n * d + (n * cosine - std::sqrt(rest)) * normal;
  return p.y + d.y;
}

void thousandRays(benchmark::State& state) {
  const auto directions = throughTheLens();
  const light::Lens lens = lensOf(bench);
  const light::Conditions conditions = conditionsOf(bench, edges);
  compare(
      state,
      [&] {
        for (const Point d : directions) {
          benchmark::DoNotOptimize(light::trace(lens, {{-200.0, 0.0}, d}, conditions));
        }
      },
      [&] {
        for (const Point d : directions) {
          benchmark::DoNotOptimize(bareRay({-200.0, 0.0}, d, 1.5));
        }
      });
}
BENCHMARK(thousandRays)->UseManualTime()->Unit(benchmark::kMicrosecond);

// 3437 rays, the most that the controls allow; a bundle of 151.
void largestFan(benchmark::State& state) {
  const double vima = 4.0 * std::atan(1.0) * 5.0 / 150.0;
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(send(bench, Fan{{-200.0, 30.0}, vima}, edges));
  }
}
BENCHMARK(largestFan)->Unit(benchmark::kMicrosecond);

void bundle(benchmark::State& state) {
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(send(bench, Desmi{0.3, 150}, edges));
  }
}
BENCHMARK(bundle)->Unit(benchmark::kMicrosecond);

// One front of an animation of 151 rays.
void frontOfABundle(benchmark::State& state) {
  const Sent sent = send(bench, Desmi{0.3, 150}, edges);
  double L = 0.0;
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(frontAt(sent, L));
    L = L < 600.0 ? L + 2.5 : 0.0;
  }
}
BENCHMARK(frontOfABundle)->Unit(benchmark::kMicrosecond);

// Asking all over the drawing area, within 4 units: the largest fan with its wave points, and the
// moving fronts of as many rays.
void ask(benchmark::State& state, const Shown& shown) {
  Point p{edges.left, edges.lower};
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(ask(shown, p, 4.0));
    p.x += 37.0;
    if (p.x > edges.right) p = {edges.left, p.y + 31.0};
    if (p.y > edges.upper) p.y = edges.lower;
  }
}
Sent sentLargestFan() {
  return send(bench, Fan{{-200.0, 30.0}, 4.0 * std::atan(1.0) * 5.0 / 150.0}, edges);
}
void askInTheLargestFan(benchmark::State& state) {
  const LensScene scene{startLens, 1.5, {-200.0, 30.0}};
  ask(state, Shown{{scene, Light{sentLargestFan(), {true, true}}}});
}
BENCHMARK(askInTheLargestFan)->Unit(benchmark::kMicrosecond);
void askAmongMovingFronts(benchmark::State& state) {
  ask(state, Shown{{WaveScene{startLens, 1.5}, Fronts{sentLargestFan(), 150}}});
}
BENCHMARK(askAmongMovingFronts)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace lensbench::poreiaaktinon

BENCHMARK_MAIN();
