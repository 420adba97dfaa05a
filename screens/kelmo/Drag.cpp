#include "screens/kelmo/Drag.h"

#include <algorithm>
#include <cmath>

#include "optics/poreiaaktinon/SurfaceSearch.h"

namespace lensbench {
namespace {

using poreiaaktinon::Diafragma;
using poreiaaktinon::Edges;
using poreiaaktinon::Fakos;

constexpr double centreMargin = 8.0;
constexpr double edgeMargin = 6.0;

double distance(Point p, double centre) { return std::hypot(p.x - centre, p.y); }

// How far p is from where the circle crosses the axis, judged by abscissa and by distance from the
// circle, so that letting go at the same place keeps the radius; beyond the margin: no grab.
double edgeDistance(Point p, double centre, double radius) {
  const double fromCircle = std::fabs(distance(p, centre) - radius);
  const double fromCrossing = std::fabs(std::fabs(p.x - centre) - radius);
  return std::max(fromCircle, fromCrossing);
}

Grab centreAt(Point p, const Fakos& lens) {
  const bool left = distance(p, lens.xc1) <= centreMargin;
  const bool right = distance(p, lens.xc2) <= centreMargin;
  // Marks that cover each other are told apart by the side of the press.
  if (left && right && lens.xc1 == lens.xc2) {
    return p.x < lens.xc1 ? Grab::LeftCentre : Grab::RightCentre;
  }
  if (left) return Grab::LeftCentre;
  return right ? Grab::RightCentre : Grab::None;
}

Grab edgeAt(Point p, const Fakos& lens) {
  const double left = edgeDistance(p, lens.xc1, lens.R1);
  const double right = edgeDistance(p, lens.xc2, lens.R2);
  if (std::min(left, right) > edgeMargin) return Grab::None;
  return left <= right ? Grab::LeftEdge : Grab::RightEdge;
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

}  // namespace

Grab grabAt(Point p, const Diafragma& diafragma, const Fakos& fakos, const Edges& edges) {
  if (const Grab blade = bladeAt(p, diafragma, edges); blade != Grab::None) return blade;
  if (const Grab centre = centreAt(p, fakos); centre != Grab::None) return centre;
  return edgeAt(p, fakos);
}

bool insideLens(Point p, const Fakos& fakos) {
  return poreiaaktinon::hasLens(fakos) && distance(p, fakos.xc1) <= fakos.R1 &&
         distance(p, fakos.xc2) <= fakos.R2;
}

Diafragma releasedDiaphragm(Grab grab, Point p, const Diafragma& before, const Edges& edges) {
  Diafragma after = before;
  after.X = std::clamp(p.x, edges.left, edges.right);
  if (grab == Grab::UpperBlade) {
    after.yA = std::clamp(p.y, before.yB, std::max(before.yB, edges.upper));
  } else if (grab == Grab::LowerBlade) {
    after.yB = std::clamp(p.y, std::min(edges.lower, before.yA), before.yA);
  } else if (grab == Grab::Diaphragm && p.y < before.yB) {
    const double step = (edges.upper - edges.lower) / 10.0;
    const double down = std::min(std::ceil((before.yB - p.y) / step) * step,
                                 std::max(0.0, before.yB - edges.lower));
    after.yA -= down;
    after.yB -= down;
  }
  return after;
}

int releasedCentre(double x, int lowest, int highest) {
  return static_cast<int>(
      std::clamp(std::nearbyint(x), static_cast<double>(lowest), static_cast<double>(highest)));
}

int releasedRadius(double x, double centre, int lowest, int highest) {
  return static_cast<int>(std::floor(std::clamp(std::fabs(centre - x), static_cast<double>(lowest),
                                                static_cast<double>(highest))));
}

}  // namespace lensbench
