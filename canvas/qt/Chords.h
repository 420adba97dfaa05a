// Circles and arcs as chords, of which only those near a rectangle are computed.
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>

#include "canvas/qt/Clipping.h"

namespace lensbench {

// An arc in image pixels, counter-clockwise on the screen (y grows downward there) from the angle
// start over sweep, in radians.
struct Arc {
  Point centre;
  double radius;
  double start;
  double sweep;
};

// The chords of an arc: neighbours share their end points to the last bit, and none leaves the arc
// by more than an eighth of a pixel.
class Chords {
 public:
  explicit Chords(const Arc& arc) : arc_(arc) {
    constexpr double error = 0.125;
    const double angle = arc.radius > error ? std::sqrt(8.0 * error / arc.radius) : 1.0;
    // Finer than 2^46 parts of a turn the angles of neighbours would no longer differ.
    const int halvings = static_cast<int>(std::ceil(std::log2(std::fabs(arc.sweep) / angle + 1.0)));
    count_ = std::int64_t{1} << (halvings < 3 ? 3 : halvings > 46 ? 46 : halvings);
  }

  // Calls visit(chord, arc length at its start) for every chord that may touch the box.
  template <typename Visit>
  void visitNear(const Box& box, Visit&& visit) const {
    visitNear(box, 0, count_, vertex(0), vertex(count_), visit);
  }

 private:
  Point vertex(std::int64_t index) const {
    const bool closes = index == count_ && arc_.sweep >= 2.0 * std::numbers::pi;
    const double part = closes ? 0.0 : static_cast<double>(index) / static_cast<double>(count_);
    const double angle = arc_.start + arc_.sweep * part;
    return {arc_.centre.x + arc_.radius * std::cos(angle),
            arc_.centre.y - arc_.radius * std::sin(angle)};
  }

  // How far the arc over a number of chords can stand off the line between its ends.
  double bulge(std::int64_t chords) const {
    const double angle = arc_.sweep * static_cast<double>(chords) / static_cast<double>(count_);
    return angle >= std::numbers::pi ? 2.0 * arc_.radius
                                     : arc_.radius * (1.0 - std::cos(angle / 2.0));
  }

  template <typename Visit>
  void visitNear(const Box& box, std::int64_t first, std::int64_t last, Point a, Point b,
                 Visit& visit) const {
    const double margin = bulge(last - first) + 1.0;
    if (std::fmax(a.x, b.x) + margin < box.left || std::fmin(a.x, b.x) - margin > box.right ||
        std::fmax(a.y, b.y) + margin < box.top || std::fmin(a.y, b.y) - margin > box.bottom) {
      return;
    }
    if (last - first == 1) {
      const double part = static_cast<double>(first) / static_cast<double>(count_);
      visit(Segment{a, b}, arc_.radius * arc_.sweep * part);
      return;
    }
    const std::int64_t middle = first + (last - first) / 2;
    const Point c = vertex(middle);
    visitNear(box, first, middle, a, c, visit);
    visitNear(box, middle, last, c, b, visit);
  }

  Arc arc_;
  std::int64_t count_;
};

}  // namespace lensbench
