// What the single-ray screen draws: the lens with its focal marks, and the aim of the ray.
//
// Lengths in user units. Circle 1 stands at xc1, the origin on the screen; circle 2 at xc2, which
// is also taken as the distance of the centres. The right face is the arc of circle 1 around angle
// 0, the left face the arc of circle 2 around angle pi.
#pragma once

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench {

// Where the faces meet and how far they reach.
struct LensOutline {
  double x0 = 0.0;      // abscissa of the common chord
  double h = 0.0;       // ordinate of the upper rim point; 0 for circles that do not cross
  double h2 = 0.0;      // ordinate of the lower rim point
  double alpha1 = 0.0;  // half-angle of the right face, arc sine of h / R1, radians
  double alpha2 = 0.0;  // half-angle of the left face, arc sine of h / R2, radians
};
// Division by zero (11), in words, for a radius of 0 and for circles that are one and the same. An
// arc sine never exceeds a right angle, so a face of more than half a circle is outlined too short.
LensOutline outlineOf(const Variant& R1, const Variant& R2, const Variant& xc2);

// Clears, and draws the faces and the focal marks.
void drawLensAlone(Canvas& canvas, const Variant& R1, const Variant& R2, const Variant& xc1,
                   const Variant& xc2, const Variant& deiktis);

// Draws what lies under the ray, twice over: focal marks, faces, and the two lines along the top
// and the bottom of the lens; the second time with marks at the rim.
void drawLensUnderRay(Canvas& canvas, const Variant& R1, const Variant& R2, const Variant& kentro2,
                      const Variant& deiktis);

// The direction, not of unit length, of a ray from (xs, ys) that is aimed at (xa, ya). Division by
// zero (11), in words, when one stands exactly above the other.
poreiaaktinon::SinglePair aimedDirection(float xs, float ys, float xa, float ya);

}  // namespace lensbench
