#include "screens/kelmo/Drag.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

using light::Edges;
using poreiaaktinon::Diafragma;
using poreiaaktinon::Fakos;

constexpr double centreMargin = 8.0;
constexpr double centreMark = 3.0;  // radius of the mark
constexpr double edgeMargin = 6.0;
constexpr double reachMargin = 3.0;

double distance(Point p, double centre) { return std::hypot(p.x - centre, p.y); }

// How far p is from where the circle crosses the axis, judged by abscissa and by distance from the
// circle, so that letting go at the same place keeps the radius.
double edgeDistance(Point p, double centre, double radius) {
  const double fromCircle = std::fabs(distance(p, centre) - radius);
  const double fromCrossing = std::fabs(std::fabs(p.x - centre) - radius);
  return std::max(fromCircle, fromCrossing);
}

struct Candidate {
  Grab grab;
  double distance;
  double margin;
};

// The nearer of two that are within reach, the first when they are equally near.
const Candidate& nearer(const Candidate& a, const Candidate& b) {
  if (b.distance > b.margin) return a;
  return a.distance > a.margin || b.distance < a.distance ? b : a;
}

Grab circleAt(Point p, const Fakos& lens) {
  Candidate left{Grab::LeftCentre, distance(p, lens.xc1), centreMargin};
  Candidate right{Grab::RightCentre, distance(p, lens.xc2), centreMargin};
  // Marks that cover each other are told apart by the side of the press.
  if (lens.xc1 == lens.xc2 && p.x >= lens.xc1) std::swap(left, right);
  const Candidate centre = nearer(left, right);
  const Candidate edge = nearer({Grab::LeftEdge, edgeDistance(p, lens.xc1, lens.R1), edgeMargin},
                                {Grab::RightEdge, edgeDistance(p, lens.xc2, lens.R2), edgeMargin});
  // A circle of radius 0 is as near as its centre everywhere: outside the mark it is enlarged.
  const bool edgeFirst = edge.distance == centre.distance && centre.distance > centreMark;
  const Candidate& best = edgeFirst ? nearer(edge, centre) : nearer(centre, edge);
  return best.distance <= best.margin ? best.grab : Grab::None;
}

Grab bladeAt(Point p, const Diafragma& d, const Edges& edges) {
  const double band = (edges.right - edges.left) / 120.0;
  const double margin = (edges.upper - edges.lower) / 120.0;
  if (p.x <= d.X - band || p.x >= d.X + band) return Grab::None;
  const auto between = [&](double lower, double upper) {
    return p.y > lower - margin && p.y < upper + margin;
  };
  if (between(d.yA, edges.upper)) return Grab::UpperBlade;
  if (between(edges.lower, d.yB)) return Grab::LowerBlade;
  return p.y > d.yB && p.y < d.yA ? Grab::Diaphragm : Grab::None;
}

// The lower bound wins where there is no room at all.
double within(double value, double lowest, double highest) {
  return std::max(lowest, std::min(value, highest));
}

}  // namespace

Grab grabAt(Point p, const Diafragma& diafragma, const Fakos& fakos, const Edges& edges) {
  const Grab blade = bladeAt(p, diafragma, edges);
  return blade == Grab::None ? circleAt(p, fakos) : blade;
}

double edgeHalfAngle(double radius) {
  return radius > 0.0 ? std::acos(std::max(-1.0, 1.0 - edgeMargin / radius)) : 0.0;
}

bool insideLens(Point p, const Fakos& fakos) {
  return poreiaaktinon::hasLens(fakos) && distance(p, fakos.xc1) <= fakos.R1 &&
         distance(p, fakos.xc2) <= fakos.R2;
}

Edges reachAt(double X, const Room& room) {
  const Edges& area = room.area;
  const Point middle{(area.left + area.right) / 2.0, (area.lower + area.upper) / 2.0};
  const auto near = [](double value, double lowest, double highest) {
    return value > lowest - reachMargin && value < highest + reachMargin;
  };
  Edges reach = area;
  for (const Edges& control : room.controls) {
    if (!near(middle.y, control.lower, control.upper)) continue;
    if (control.left > middle.x) reach.right = std::min(reach.right, control.left);
    if (control.right < middle.x) reach.left = std::max(reach.left, control.right);
  }
  reach.left += reachMargin;
  reach.right -= reachMargin;
  const double x = within(X, reach.left, reach.right);
  for (const Edges& control : room.controls) {
    if (!near(x, control.left, control.right)) continue;
    if (control.lower > middle.y) reach.upper = std::min(reach.upper, control.lower);
    if (control.upper < middle.y) reach.lower = std::max(reach.lower, control.upper);
  }
  reach.lower += reachMargin;
  reach.upper -= reachMargin;
  return reach;
}

Diafragma releasedDiaphragm(Grab grab, Point p, const Diafragma& before, const Room& room) {
  const Edges reach = reachAt(p.x, room);
  const double y = within(p.y, reach.lower, reach.upper);
  Diafragma after = before;
  after.X = within(p.x, reach.left, reach.right);
  if (grab == Grab::UpperBlade) {
    after.yA = std::max(y, before.yB);
  } else if (grab == Grab::LowerBlade) {
    after.yB = std::min(y, before.yA);
  } else if (grab == Grab::Diaphragm && p.y < before.yB) {
    const double step = (room.area.upper - room.area.lower) / 10.0;
    const double down = std::min(std::ceil((before.yB - p.y) / step) * step,
                                 std::max(0.0, before.yB - reach.lower));
    after.yA -= down;
    after.yB -= down;
  }
  return after;
}

Point releasedSource(Point p, const Room& room) {
  const Edges reach = reachAt(p.x, room);
  return {within(p.x, reach.left, reach.right), within(p.y, reach.lower, reach.upper)};
}

int releasedCentre(double x, int lowest, int highest) {
  return static_cast<int>(
      std::clamp(std::nearbyint(x), static_cast<double>(lowest), static_cast<double>(highest)));
}

int releasedRadius(int radius, double centre, double taken, double released, int lowest,
                   int highest) {
  const double change = std::fabs(released - centre) - std::fabs(taken - centre);
  return static_cast<int>(std::floor(
      std::clamp(radius + change, static_cast<double>(lowest), static_cast<double>(highest))));
}

}  // namespace lensbench
