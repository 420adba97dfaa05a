#include "optics/poreiaaktinon/DrawingArea.h"

#include <algorithm>
#include <limits>

#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {
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

SinglePair klasmaothonis(const Canvas& canvas, const Variant& x, const Variant& y) {
  const Variant height = canvas.ScaleHeight();
  const Variant fx = (x - canvas.ScaleLeft()) / canvas.ScaleWidth();
  const Variant fy = ((y - canvas.ScaleTop()) - height) / -height;
  return {toSingle(fx.value()), toSingle(fy.value())};
}

SinglePair orioothonis(const Canvas& canvas, const Variant& x0, const Variant& y0,
                       const Variant& dx, const Variant& dy) {
  const Variant side = dx > 0 ? canvas.ScaleLeft() + canvas.ScaleWidth() : canvas.ScaleLeft();
  const Variant end = dy > 0 ? canvas.ScaleTop() : canvas.ScaleTop() + canvas.ScaleHeight();
  const auto point = [](const Variant& x, const Variant& y) {
    return SinglePair{toSingle(x.value()), toSingle(y.value())};
  };
  if (dx == 0 && dy == 0) return {};
  if (dx == 0) return point(x0, end);
  if (dy == 0) return point(side, y0);

  const Variant sideY = y0 + (side - x0) * dy / dx;
  const Variant endX = x0 + dx * (end - y0) / dy;
  if (apostasi(endX, end, x0, y0) < apostasi(side, sideY, x0, y0)) return point(endX, end);
  return point(side, sideY);
}

Edges edgesOf(const Canvas& canvas) {
  const double left = canvas.ScaleLeft();
  const double top = canvas.ScaleTop();
  const double bottom = top + canvas.ScaleHeight();
  return {left, left + canvas.ScaleWidth(), std::min(top, bottom), std::max(top, bottom)};
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

}  // namespace lensbench::poreiaaktinon
