#include "optics/light/Edges.h"

namespace lensbench::light {
namespace {

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

Stretch visibleStretch(const Edges& edges, Point start, Point direction, Stretch whole) {
  Stretch visible = whole;
  clip(visible, start.x, direction.x, edges.left, edges.right);
  clip(visible, start.y, direction.y, edges.lower, edges.upper);
  return visible;
}

}  // namespace lensbench::light
