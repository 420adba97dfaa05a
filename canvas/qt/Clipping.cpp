#include "canvas/qt/Clipping.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lensbench {
namespace {

// Keeps of the parameter range [enter, leave] what lies on the inner side of one edge; along is
// how fast the segment goes outwards, room how much of the way is left at its start.
bool cut(long double along, long double room, long double& enter, long double& leave) {
  if (along == 0.0L) return room >= 0.0L;
  const long double t = room / along;
  if (along < 0.0L) {
    if (t > enter) enter = t;
  } else if (t < leave) {
    leave = t;
  }
  return enter <= leave;
}

long double farness(FarPoint p) { return std::fabs(p.x) + std::fabs(p.y); }

// A rounding must not carry a cut end out of the box, where there may be no pixel.
Point within(const Box& box, long double x, long double y) {
  return {std::clamp(static_cast<double>(x), box.left, box.right),
          std::clamp(static_cast<double>(y), box.top, box.bottom)};
}

}  // namespace

std::optional<Segment> clipped(FarPoint from, FarPoint to, const Box& box) {
  // Measured from its nearer end, a way of any length keeps the digits that matter in the box.
  if (farness(from) > farness(to)) {
    auto backwards = clipped(to, from, box);
    if (backwards) std::swap(backwards->from, backwards->to);
    return backwards;
  }
  const long double dx = to.x - from.x;
  const long double dy = to.y - from.y;
  long double enter = 0.0L;
  long double leave = 1.0L;
  if (!cut(-dx, from.x - box.left, enter, leave) || !cut(dx, box.right - from.x, enter, leave) ||
      !cut(-dy, from.y - box.top, enter, leave) || !cut(dy, box.bottom - from.y, enter, leave)) {
    return std::nullopt;
  }
  // An end point that is kept is kept to the last bit.
  const auto at = [&](long double t) { return within(box, from.x + t * dx, from.y + t * dy); };
  return Segment{enter > 0.0L ? at(enter) : within(box, from.x, from.y),
                 leave < 1.0L ? at(leave) : within(box, to.x, to.y)};
}

}  // namespace lensbench
