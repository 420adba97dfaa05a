// The edges of a drawing area, where rays end that nothing else ends.
#pragma once

#include "canvas/Canvas.h"

namespace lensbench::light {

// User units; lower and upper by value, whichever way y grows on the screen.
struct Edges {
  double left = 0.0;
  double right = 0.0;
  double lower = 0.0;
  double upper = 0.0;

  friend bool operator==(const Edges&, const Edges&) = default;
};
Edges edgesOf(const Canvas& canvas);

// The edges moved out all around by a distance, or in by a negative one.
Edges movedOut(const Edges& edges, double distance);

// Where the line of a ray meets the nearer of the two edges that the ray heads for, behind the
// start too. The direction may be of any length but 0.
Point nearerEdge(const Edges& edges, Point start, Point direction);

// The same point where the ray leaves the area; the start itself when the area lies behind the ray.
Point leavingPoint(const Edges& edges, Point start, Point direction);

// The stretch of a ray from start along a direction, between multiples from and to of that
// direction, that lies within the edges; empty when from > to.
struct Stretch {
  double from = 0.0;
  double to = 0.0;
};
Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole);

}  // namespace lensbench::light
