#include "tests/property/poreiaaktinon/IndependentTrace.h"

#include <algorithm>
#include <cmath>

namespace lensbench::poreiaaktinon {
namespace {

long double square(long double v) { return v * v; }

}  // namespace

std::optional<IndependentMeeting> firstMeeting(const Fakos& fakos, long double px, long double py,
                                               long double dx, long double dy, long double beyond) {
  std::optional<IndependentMeeting> nearest;
  for (const bool first : {true, false}) {
    const long double c = first ? fakos.xc1 : fakos.xc2;
    const long double r = first ? fakos.R1 : fakos.R2;
    const long double other = first ? fakos.xc2 : fakos.xc1;
    const long double otherR = first ? fakos.R2 : fakos.R1;
    const long double b = (px - c) * dx + py * dy;
    const long double discriminant = square(b) - (square(px - c) + square(py) - square(r));
    if (discriminant <= 0.0L) continue;
    const long double root = std::sqrt(discriminant);
    for (const long double t : {-b - root, -b + root}) {
      const long double x = px + t * dx;
      const long double y = py + t * dy;
      if (t <= beyond || square(x - other) + square(y) > square(otherR)) continue;
      if (!nearest || t < nearest->t) nearest = IndependentMeeting{x, y, t, first, root};
    }
  }
  return nearest;
}

IndependentTrace traceIndependently(const Fakos& fakos, double n, Point start, double angle) {
  IndependentTrace trace;
  Leg leg{start.x, start.y, angle, 1.0L};
  trace.legs.push_back(leg);
  for (int face = 0; face < 2; ++face) {
    const auto meeting = firstMeeting(fakos, leg.x, leg.y, std::cos(leg.angle), std::sin(leg.angle),
                                      face == 0 ? 0.0L : 1e-9L);
    if (!meeting) break;
    // The normal on the side that the ray goes to.
    const long double centre = meeting->onCircle1 ? fakos.xc1 : fakos.xc2;
    const long double outward = std::atan2(meeting->y, meeting->x - centre);
    const long double normal = face == 0 ? outward + std::acos(-1.0L) : outward;
    const long double incidence = std::remainder(leg.angle - normal, 2.0L * std::acos(-1.0L));
    const long double ratio = face == 0 ? 1.0L / n : static_cast<long double>(n);
    const long double sine = ratio * std::sin(incidence);
    if (std::fabs(sine) > 1.0L) {
      trace.totallyReflected = true;
      trace.smallestCosine = std::min(trace.smallestCosine, std::fabs(std::fabs(sine) - 1.0L));
      break;
    }
    trace.smallestCosine =
        std::min({trace.smallestCosine, std::cos(incidence), std::sqrt(1.0L - square(sine))});
    leg = {meeting->x, meeting->y, normal + std::asin(sine),
           face == 0 ? static_cast<long double>(n) : 1.0L};
    trace.legs.push_back(leg);
  }
  return trace;
}

Point pointOn(const IndependentTrace& trace, long double opticalPath) {
  std::size_t i = 0;
  for (; i + 1 < trace.legs.size(); ++i) {
    const Leg& next = trace.legs[i + 1];
    const long double here =
        trace.legs[i].index * std::hypot(next.x - trace.legs[i].x, next.y - trace.legs[i].y);
    if (opticalPath <= here) break;
    opticalPath -= here;
  }
  const Leg& leg = trace.legs[i];
  const long double s = opticalPath / leg.index;
  return {static_cast<double>(leg.x + s * std::cos(leg.angle)),
          static_cast<double>(leg.y + s * std::sin(leg.angle))};
}

}  // namespace lensbench::poreiaaktinon
