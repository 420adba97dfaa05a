// Plane geometry that the pictures of spherical lenses rest on: where two circles cross, arc sines
// and the focal length.
//
// Given routines that the pictures use; those that no picture needs are in Named.h. Lengths are in
// user units, angles in radians. No routine raises an error of its own; a division by zero that a
// routine does not test is Division by zero (11).
#pragma once

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {

// toxoimitonou: arc sine of s in radians, from the arc tangent; Empty where s is outside [-1, 1].
Variant toxoimitonou(Variant s);

// estiakiapostasi: focal length of a thin biconvex lens by the lensmaker's equation,
// 1 / ((1/R1 + 1/R2)(n - 1)), radii as positive magnitudes; Empty when it is infinite.
Variant estiakiapostasi(Variant R1, Variant R2, Variant n);

// SimeiaTomis: two points of intersection. found is true only when both are valid; look at it
// first.
struct SimeiaTomis {
  double x1 = 0.0;
  double y1 = 0.0;
  double x2 = 0.0;
  double y2 = 0.0;
  Boolean found = 0;
};

// tomikyklonapostasis: the circle of radius r1 at the origin with that of radius r2 at (d, 0),
// upper point first. Tangent circles count as found. d = 0 is Division by zero (11) unless the
// radii make the circles miss.
SimeiaTomis tomikyklonapostasis(Variant d, Variant r1, Variant r2);

// tomikyklonaxona: two circles with centres (a, 0) and (b, 0) and radii ra and rb, upper point
// first. Tangent circles count as found, concentric ones do not.
SimeiaTomis tomikyklonaxona(Variant a, Variant b, Variant ra, Variant rb);

}  // namespace lensbench::poreiaaktinon
