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
std::optional<HyperbolaAxes> deriveLens(const Variant& n);

// Half-height of the lens at its rim x = 4a, b·√15, user units.
double rimHalfHeight(double b);

// toxo imitono: arc sine in radians, as Atn(s / Sqr(1 - s·s)). s = 1 or -1 is Division by zero
// (11), beyond that Invalid argument (5).
Variant toxoimitonoSahl(const Variant& s);

// apostasi: distance of two points, user units.
Variant apostasiSahl(const Variant& x1, const Variant& y1, const Variant& x2, const Variant& y2);

// tomi yperbolis: the abscissas where the line y = m·x + q meets the hyperbola, on either branch.
// Empty when it does not. For a line parallel to an asymptote both give its one intersection; for
// an asymptote itself (q = 0) that is Division by zero (11).
Variant tomiyperbolis1(const Variant& m, const Variant& q, const Variant& b, const Variant& a);
Variant tomiyperbolis2(const Variant& m, const Variant& q, const Variant& b, const Variant& a);

}  // namespace lensbench::protosfakos
