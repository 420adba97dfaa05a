#include "optics/light/Edges.h"

#include <algorithm>
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

Point leavingPoint(const Edges& edges, Point start, Point direction) {
  const double side = direction.x > 0.0 ? edges.right : edges.left;
  const double end = direction.y > 0.0 ? edges.upper : edges.lower;
  const double toSide = direction.x == 0.0 ? infinity : (side - start.x) / direction.x;
  const double toEnd = direction.y == 0.0 ? infinity : (end - start.y) / direction.y;
  if (std::min(toSide, toEnd) <= 0.0) return start;
  if (toEnd < toSide) return {start.x + direction.x * toEnd, end};
  return {side, start.y + direction.y * toSide};
}

Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole) {
  Stretch visible = whole;
  clip(visible, start.x, direction.x, edges.left, edges.right);
  clip(visible, start.y, direction.y, edges.lower, edges.upper);
  return visible;
}

}  // namespace lensbench::light
