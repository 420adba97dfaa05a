// The cardinal points of the thick lens and the construction of an image by three principal rays.
#pragma once

#include "canvas/Canvas.h"
#include "optics/light/Face.h"
#include "optics/poreiaaktinon/Bench.h"

namespace lensbench::poreiaaktinon {

// Abscissas on the axis and lengths, user units.
struct CardinalPoints {
  double d = 0.0;   // thickness, from the left vertex to the right one
  double f = 0.0;   // focal length of the thick lens
  double H1 = 0.0;  // principal points
  double H2 = 0.0;
  double N1 = 0.0;  // nodal points
  double N2 = 0.0;
  double F1 = 0.0;  // focal points
  double F2 = 0.0;
};

// The thick-lens formulas. A radius or index of 0, and a lens without power, are Division by zero
// (11). Kept on purpose: each principal point is placed with the radius of the face beside it;
// exact optics, which the rays follow, takes that of the opposite face.
CardinalPoints cardinalPoints(const Fakos& fakos, double n);

// The same with each principal point where paraxial rays have it; the two differ where the radii
// do.
CardinalPoints paraxialPoints(const Fakos& fakos, double n);

// False without a lens, at n = 1, and where 1/f is 0: then there is nothing to mark.
bool hasCardinalPoints(const Fakos& fakos, double n);

// Leftwards the points of the two sides exchange their roles: F1 and F2, H1 and H2, N1 and N2.
using light::Travel;
// From a source to the right of the lens's right vertex light goes to the left.
Travel travelFrom(Point source, const Fakos& fakos);

// False where the construction would divide by zero: the source on the axis, or straight above or
// below the focal or the nodal point on the side where light comes from.
bool canConstruct(const CardinalPoints& points, Point source, Travel travel);

// Where the constructed rays, or what is behind or before them on their lines, meet: the image of
// the source. Division by zero (11) where canConstruct is false.
Point imageOf(const CardinalPoints& points, Point source, Travel travel);

// True when light that has left the lens comes together at the image: it stands behind the lens.
bool isReal(Point image, const Fakos& fakos, Travel travel);

// How far the principal planes are drawn above and below the axis, user units.
inline constexpr double planeHalfHeight = 200.0;
// The principal planes, dotted, and the focal and nodal points as dots.
void drawCardinalMarks(Canvas& canvas, const CardinalPoints& points);
// The rays from the source through F1, parallel to the axis, and through the nodal points, and the
// image point where they meet. Division by zero (11) where canConstruct is false.
void drawConstruction(Canvas& canvas, const CardinalPoints& points, Point source, Travel travel);
void drawCardinalLabels(Canvas& canvas, const CardinalPoints& points);

// All of it, without the construction where that has no answer; nothing where the lens has no
// cardinal points.
void drawCardinalPoints(Canvas& canvas, const Fakos& fakos, double n, Point source);

}  // namespace lensbench::poreiaaktinon
