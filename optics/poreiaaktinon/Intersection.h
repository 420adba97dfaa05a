// Intersections of two circles, and of a line with a circle. Lengths in user units.
#pragma once

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {

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
SimeiaTomis tomikyklonapostasis(const Variant& d, const Variant& r1, const Variant& r2);

// tomikyklonaxona: two circles with centres (a, 0) and (b, 0) and radii ra and rb, upper point
// first. Tangent circles count as found, concentric ones do not.
SimeiaTomis tomikyklonaxona(const Variant& a, const Variant& b, const Variant& ra,
                            const Variant& rb);

// Whether the two points that the slope form finds may stand for points of a circle of radius r, by
// their distances from its centre: the first within 1.00005 r, the second, ten times tighter,
// within 1.000005 r.
bool nearCircle(const Variant& first, const Variant& second, const Variant& r);

// tomieytheiaskyklou: the line through (px, py) along (dx, dy) with the circle (cx, cy), r; the
// point of larger x first, of larger y on a vertical line. A tangent counts as not found; then both
// points are (px, py), or (0, 0) for a vertical line. Slope form: a steep line loses digits, and
// points too far from the circle (nearCircle) make it not found.
SimeiaTomis tomieytheiaskyklou(const Variant& cx, const Variant& cy, const Variant& r,
                               const Variant& dx, const Variant& dy, const Variant& px,
                               const Variant& py);

}  // namespace lensbench::poreiaaktinon
