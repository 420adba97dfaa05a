// The hyperbola x²/a² - y²/b² = 1 whose eccentricity is the index of refraction.
#pragma once

#include <optional>

#include "canvas/Variant.h"

namespace lensbench::protosfakos {

// Semi-axes and focal distance, user units. Of the two branches the right one, x >= a, bounds
// glass.
struct HyperbolaAxes {
  double a = 0.0;
  double b = 0.0;
  double c = 0.0;
};

// Real semi-axis of every lens, user units.
constexpr int semiAxis = 12;

// a = 12, c = n·a, b = Sqr(c² - a²). Refused, never an error, for an index below 1 (c < a); n = 1
// gives b = 0.
std::optional<HyperbolaAxes> deriveLens(Variant n);

// Abscissa of the rim, where the two faces of a lens meet, user units.
constexpr double rimX(double a) noexcept { return 4.0 * a; }
// Half-height of the lens there, b·√15, user units.
double rimHalfHeight(double b);

}  // namespace lensbench::protosfakos
