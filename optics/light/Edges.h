// The edges of a drawing area, where rays end that nothing else ends.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

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

// Of the two edges that a ray heads for the one whose line is nearer, behind the start too: where
// that line is met. The direction may be of any length but 0.
struct EdgeAhead {
  Point point;
  double distance = 0.0;  // to the first of the two along the direction; 0 or less: one is behind
};
inline EdgeAhead nearerEdge(const Edges& edges, Point start, Point direction) {
  constexpr double never = std::numeric_limits<double>::infinity();
  const double side = direction.x > 0.0 ? edges.right : edges.left;
  const double end = direction.y > 0.0 ? edges.upper : edges.lower;
  const double toSide = direction.x == 0.0 ? never : (side - start.x) / direction.x;
  const double toEnd = direction.y == 0.0 ? never : (end - start.y) / direction.y;
  const double first = std::min(toSide, toEnd);
  if (std::fabs(toEnd) < std::fabs(toSide)) return {{start.x + direction.x * toEnd, end}, first};
  return {{side, start.y + direction.y * toSide}, first};
}

// Where a ray leaves the area; the start itself when the area lies behind the ray.
inline Point leavingPoint(const Edges& edges, Point start, Point direction) {
  const EdgeAhead edge = nearerEdge(edges, start, direction);
  return edge.distance <= 0.0 ? start : edge.point;
}

// The stretch of a ray from start along a direction, between multiples from and to of that
// direction, that lies within the edges; empty when from > to.
struct Stretch {
  double from = 0.0;
  double to = 0.0;
};
Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole);

}  // namespace lensbench::light
