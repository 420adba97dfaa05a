#include "optics/light/Edges.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lensbench::light {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// Narrows a stretch of a coordinate running from start at the given rate to [low, high].
void clip(Stretch& stretch, double start, double rate, double low, double high) {
  if (rate == 0.0) {
    if (start < low || start > high) stretch = {0.0, -1.0};
    return;
  }
  const double a = (low - start) / rate;
  const double b = (high - start) / rate;
  stretch.from = std::max(stretch.from, std::min(a, b));
  stretch.to = std::min(stretch.to, std::max(a, b));
}

// The two edges that a ray heads for, and how far along its direction their lines are.
struct Ahead {
  double side = 0.0;
  double end = 0.0;
  double toSide = infinity;
  double toEnd = infinity;
};

Ahead ahead(const Edges& edges, Point start, Point direction) {
  const double side = direction.x > 0.0 ? edges.right : edges.left;
  const double end = direction.y > 0.0 ? edges.upper : edges.lower;
  return {side, end, direction.x == 0.0 ? infinity : (side - start.x) / direction.x,
          direction.y == 0.0 ? infinity : (end - start.y) / direction.y};
}

Point pointOn(const Ahead& edge, Point start, Point direction) {
  if (std::fabs(edge.toEnd) < std::fabs(edge.toSide)) {
    return {start.x + direction.x * edge.toEnd, edge.end};
  }
  return {edge.side, start.y + direction.y * edge.toSide};
}

}  // namespace

Edges edgesOf(const Canvas& canvas) {
  const double left = canvas.ScaleLeft();
  const double top = canvas.ScaleTop();
  const double bottom = top + canvas.ScaleHeight();
  return {left, left + canvas.ScaleWidth(), std::min(top, bottom), std::max(top, bottom)};
}

Edges movedOut(const Edges& edges, double distance) {
  return {edges.left - distance, edges.right + distance, edges.lower - distance,
          edges.upper + distance};
}

Point nearerEdge(const Edges& edges, Point start, Point direction) {
  return pointOn(ahead(edges, start, direction), start, direction);
}

Point leavingPoint(const Edges& edges, Point start, Point direction) {
  const Ahead edge = ahead(edges, start, direction);
  return std::min(edge.toSide, edge.toEnd) <= 0.0 ? start : pointOn(edge, start, direction);
}

Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole) {
  Stretch visible = whole;
  clip(visible, start.x, direction.x, edges.left, edges.right);
  clip(visible, start.y, direction.y, edges.lower, edges.upper);
  return visible;
}

}  // namespace lensbench::light
