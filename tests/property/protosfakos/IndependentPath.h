// Another construction of paths through hyperbolic lenses, written for the tests alone: points of
// the drawn faces by the plain quadratic formula in extended precision, refraction by the vector
// form of the law of sines.
#pragma once

#include "tests/unit/protosfakos/Way.h"

namespace lensbench::protosfakos::independent {

using Real = long double;

struct V {
  Real x = 0, y = 0;
};

struct Lens {
  Real a, b, n;
  bool amfikyrtos;
};

struct Expected {
  End ending = End::Missed;
  V entry, inside, exit, emerging;
  // How nearly a ray grazes a face or the critical angle: there errors are magnified without bound
  // and the last digit decides how the ray ends.
  Real margin = 1;
};

// The path from p along d, of unit length.
Expected construct(const Lens& lens, V p, V d);

double apart(V expected, Point met);

}  // namespace lensbench::protosfakos::independent
