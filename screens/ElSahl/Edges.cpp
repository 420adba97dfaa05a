#include "screens/ElSahl/Edges.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

constexpr double margin = 3.0;  // user units

// Between two sides given in either order, a margin inside each.
double inside(double value, double side, double length) {
  return std::clamp(value, std::min(side, side + length) + margin,
                    std::max(side, side + length) - margin);
}

}  // namespace

bool liesOn(Point p, const LineControl& edge) {
  return std::fabs(p.x - edge.X1()) <= margin && std::min(edge.Y1(), edge.Y2()) <= p.y &&
         p.y <= std::max(edge.Y1(), edge.Y2());
}

protosfakos::Diafragma released(Edge taken, Point p, const protosfakos::Diafragma& before,
                                const Canvas& canvas) {
  const auto reachable = [&](double y) {
    return inside(y, canvas.ScaleTop(), canvas.ScaleHeight());
  };
  const double x = inside(p.x, canvas.ScaleLeft(), canvas.ScaleWidth());
  const double y = reachable(p.y);
  const double beyond = std::fabs(y / 10.0);
  if (taken == Edge::Upper) return {x, y, y < before.lower ? reachable(y - beyond) : before.lower};
  return {x, y > before.upper ? reachable(y + beyond) : before.upper, y};
}

}  // namespace lensbench
