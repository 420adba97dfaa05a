#include "screens/ElSahl/Edges.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

constexpr double margin = 3.0;  // user units

}  // namespace

bool DiaphragmEdge::isAt(Point p) const {
  return std::fabs(p.x - X1()) <= margin && (Y1() > 0.0 ? p.y >= Y2() : p.y <= Y2());
}

QLineF DiaphragmEdge::onScreen() const {
  const QPointF inner = LineControl::onScreen().p2();
  return {inner.x(), Y1() > 0.0 ? -1.0 : form_.canvas().size().height() + 1.0, inner.x(),
          inner.y()};
}

light::Diafragma released(Edge taken, Point p, const light::Diafragma& before, const Reach& reach) {
  // In a window too low for both limits the bottom counts.
  const auto reachable = [&](double y) {
    return std::max(reach.bottom + margin, std::min(y, reach.top - margin));
  };
  const double x = std::clamp(p.x, reach.left, reach.right);
  const double y = reachable(p.y);
  const double beyond = std::fabs(y / 10.0);
  if (taken == Edge::Upper) return {x, y, y < before.yB ? reachable(y - beyond) : before.yB};
  return {x, y > before.yA ? reachable(y + beyond) : before.yA, y};
}

}  // namespace lensbench
