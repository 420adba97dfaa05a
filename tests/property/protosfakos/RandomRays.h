// Seeded random lenses and rays for the laws of the hyperbolic lenses.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>

#include "optics/protosfakos/Hyperbola.h"
#include "tests/unit/protosfakos/Way.h"

namespace lensbench::protosfakos {

constexpr int lawRays = 100'000;

class RandomRays {
 public:
  explicit RandomRays(unsigned seed) : engine_(seed) {}

  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(engine_);
  }
  double index() { return between(1.01, 2.5); }
  // Either lens, in turn.
  light::Lens glass(double n) {
    biconvex_ = !biconvex_;
    const double b = deriveLens(n)->b;
    return biconvex_ ? biconvex(12, b, n) : planoConvex(12, b, n);
  }
  // From the screen towards a point in or near the lens, to the side on which the lens is; from
  // within the lens either way.
  light::Ray ray(const light::Lens& glass) {
    const Point start{between(-120, 150), between(-120, 120)};
    const double rim = rimHalfHeight(bOf(glass));
    const Point aim{between(12, 84), between(-rim, rim)};
    const Point way = aim - start;
    return {start, (1.0 / length(way)) * way};
  }

 private:
  std::mt19937 engine_;
  bool biconvex_ = false;
};

// Keeps the largest error met, for the message of the one assertion at the end.
struct Largest {
  double value = 0.0;
  void meet(double error) {
    value = std::isfinite(error) ? std::max(value, std::fabs(error)) : 1e300;
  }
};

}  // namespace lensbench::protosfakos
