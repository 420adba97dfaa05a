// The drawing area of a screen: its edges, and where a ray leaves it.
#pragma once

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {

// klasmaothonis: (x, y) as fractions of the drawing area, 0 at its left and bottom edges, 1 at its
// right and top edges.
SinglePair klasmaothonis(const Canvas& canvas, const Variant& x, const Variant& y);

// orioothonis: where a ray from (x0, y0) along (dx, dy) leaves the drawing area of a canvas whose y
// grows upward; (0, 0) for the zero direction. A start outside the area is not treated specially,
// so the point may lie behind it.
SinglePair orioothonis(const Canvas& canvas, const Variant& x0, const Variant& y0,
                       const Variant& dx, const Variant& dy);

// The edges of a drawing area in user units; lower is the smaller y, wherever it is on the screen.
struct Edges {
  double left = 0.0;
  double right = 0.0;
  double lower = 0.0;
  double upper = 0.0;
};
Edges edgesOf(const Canvas& canvas);

// Where a ray crosses the edges that it heads for, the same point as orioothonis in double; the
// start itself when the area lies behind the ray.
Point leavingPoint(const Edges& edges, Point start, Point direction);

// The stretch of a ray from start along the unit direction, between distances from and to, that
// lies within the edges; empty when from > to.
struct Stretch {
  double from = 0.0;
  double to = 0.0;
};
Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole);

}  // namespace lensbench::poreiaaktinon
