// Seeded random lenses, sources and directions, as the scroll bars and the mouse allow them.
#pragma once

#include <cmath>
#include <numbers>
#include <random>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Rays.h"

namespace lensbench::poreiaaktinon {

class RandomBench {
 public:
  explicit RandomBench(unsigned seed) : engine_(seed) {}

  double real(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(engine_);
  }
  int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }

  Fakos anyLens() {
    return {static_cast<double>(whole(-500, 0)), static_cast<double>(whole(50, 500)),
            static_cast<double>(whole(0, 500)), static_cast<double>(whole(0, 500))};
  }
  // Circles that cross.
  Fakos lens() {
    for (;;) {
      const Fakos fakos = anyLens();
      if (hasLens(fakos)) return fakos;
    }
  }
  double index() { return whole(40, 250) / 100.0; }
  Point source() { return {real(-384.0, 384.0), real(-216.0, 216.0)}; }
  Point direction() {
    const double angle = real(0.0, 2.0 * std::numbers::pi);
    return {std::cos(angle), std::sin(angle)};
  }
  // No diaphragm: the ray runs until it ends by itself.
  Bench bench() { return {lens(), index(), std::nullopt}; }

  static constexpr light::Edges edges{-384.0, 384.0, -216.0, 216.0};

 private:
  std::mt19937 engine_;
};

constexpr int lawRays = 100000;

// One ray to the edges of the random sources.
inline light::RayPath traced(const Bench& bench, Point start, Point direction) {
  return light::trace(lensOf(bench), {start, unit(direction)},
                      conditionsOf(bench, RandomBench::edges));
}

// Well outside one of the circles, and so in the air.
inline bool inAir(const Fakos& fakos, Point p) {
  return length(p - Point{fakos.xc2, 0.0}) > 1.001 * fakos.R2 ||
         length(p - Point{fakos.xc1, 0.0}) > 1.001 * fakos.R1;
}

}  // namespace lensbench::poreiaaktinon
