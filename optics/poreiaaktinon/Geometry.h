// Plane geometry on which the spherical lenses rest: distance, angles, normals, focal length.
//
// Lengths are in user units, angles in radians. No routine raises an error of its own; a division
// by zero that a routine does not test is Division by zero (11).
#pragma once

#include "canvas/Variant.h"

namespace lensbench::poreiaaktinon {

// Two Singles: the parts of a vector along x and y.
struct SinglePair {
  float x = 0.0f;
  float y = 0.0f;
};

// apostasi: distance of the points (x1, y1) and (x2, y2).
double apostasi(const Variant& x1, const Variant& y1, const Variant& x2, const Variant& y2);

// toxoimitonou: arc sine of s in radians, from the arc tangent; Empty where s is outside [-1, 1].
Variant toxoimitonou(const Variant& s);

// estiakiapostasi: focal length of a thin biconvex lens by the lensmaker's equation,
// 1 / ((1/R1 + 1/R2)(n - 1)), radii as positive magnitudes; Empty when it is infinite.
Variant estiakiapostasi(const Variant& R1, const Variant& R2, const Variant& n);

// kathetos: outward normal at (px, py) of the circle (cx, cy), r; of length 1 on the circle.
SinglePair kathetos(const Variant& px, const Variant& py, const Variant& cx, const Variant& cy,
                    const Variant& r);

// prosimo: sign of v, 1, -1 or 0.
Variant prosimo(const Variant& v);

// gonia: pi/2 less the angle between two vectors, in radians; where b is the tangent of a surface,
// the signed angle of a to the surface normal.
Variant gonia(const Variant& ax, const Variant& ay, const Variant& bx, const Variant& by);

}  // namespace lensbench::poreiaaktinon
