// The cardinal points of the thick lens and the construction of an image by three principal rays.
#pragma once

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Workbench.h"

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

// The thick-lens formulas; each principal point is placed with the radius of its own face. A radius
// or index of 0, and a lens without power, are Division by zero (11).
CardinalPoints cardinalPoints(const Fakos& fakos, double n);

// False without a lens, at n = 1, and where 1/f is 0: then there is nothing to mark.
bool hasCardinalPoints(const Fakos& fakos, double n);

// False where the construction would divide by zero: the source on the axis, or straight above or
// below F1 or N1.
bool canConstruct(const CardinalPoints& points, Point source);

// The principal planes, dotted, and the focal and nodal points as dots.
void drawCardinalMarks(Canvas& canvas, const CardinalPoints& points);
// The rays from the source through F1, parallel to the axis, and through the nodal points, and the
// image point where they meet. Division by zero (11) where canConstruct is false.
void drawConstruction(Canvas& canvas, const CardinalPoints& points, Point source);
void drawCardinalLabels(Canvas& canvas, const CardinalPoints& points);

// xaraktiristikasimeia: marks, construction for the light source, and labels of the workbench's
// lens, on the workbench. Tests nothing.
void xaraktiristikasimeia();

}  // namespace lensbench::poreiaaktinon
