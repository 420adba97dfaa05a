#include "screens/ElSahl/Edges.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

constexpr double margin = 3.0;  // user units

}  // namespace

bool liesOn(Point p, const LineControl& edge) {
  return std::fabs(p.x - edge.X1()) <= margin && std::min(edge.Y1(), edge.Y2()) <= p.y &&
         p.y <= std::max(edge.Y1(), edge.Y2());
}

protosfakos::Diafragma released(Edge taken, Point p, const protosfakos::Diafragma& before,
                                const Reach& reach) {
  // In a window too low for both limits the bottom counts.
  const auto reachable = [&](double y) {
    return std::max(reach.bottom + margin, std::min(y, reach.top - margin));
  };
  const double x = std::clamp(p.x, reach.left, reach.right);
  const double y = reachable(p.y);
  const double beyond = std::fabs(y / 10.0);
  if (taken == Edge::Upper) return {x, y, y < before.lower ? reachable(y - beyond) : before.lower};
  return {x, y > before.upper ? reachable(y + beyond) : before.upper, y};
}

}  // namespace lensbench
