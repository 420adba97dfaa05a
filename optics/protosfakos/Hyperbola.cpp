#include "optics/protosfakos/Hyperbola.h"

#include <cmath>

namespace lensbench::protosfakos {

std::optional<HyperbolaAxes> deriveLens(Variant n) {
  constexpr double a = semiAxis;
  const double c = n.value() * a;
  if (c < a || !std::isfinite(c)) return std::nullopt;
  return HyperbolaAxes{a, std::sqrt(c - a) * std::sqrt(c + a), c};
}

double rimHalfHeight(double b) { return b * std::sqrt(15.0); }

}  // namespace lensbench::protosfakos
