// Rays through the lens by school geometry, without diaphragm and drawing area: angles, sines and
// the quadratic formula, as a check on the tracer of the program.
#pragma once

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Bench.h"

namespace lensbench::snell {

// A straight piece of a ray; the last one has no end of its own and is cut far away.
struct Piece {
  Point from;
  Point direction;  // of unit length
  double length;
  double index;
};
using Ray = std::vector<Piece>;

constexpr double farAway = 1e4;

inline Point along(Point p, Point d, double s) { return {p.x + s * d.x, p.y + s * d.y}; }

// Distances along a ray at which it enters and leaves a disc on the axis.
struct Stay {
  double enter, leave;
};
inline std::optional<Stay> stay(double centre, double radius, Point p, Point d) {
  const double b = (p.x - centre) * d.x + p.y * d.y;
  const double q = (p.x - centre) * (p.x - centre) + p.y * p.y - radius * radius;
  const double root = b * b - q;
  if (root <= 0.0) return std::nullopt;
  return Stay{-b - std::sqrt(root), -b + std::sqrt(root)};
}

// The direction beyond a circle about (centre, 0), from the angles to its normal; nothing at total
// reflection.
inline std::optional<Point> refracted(Point d, Point at, double centre, double before,
                                      double after) {
  double normal = std::atan2(at.y, at.x - centre);
  if (d.x * std::cos(normal) + d.y * std::sin(normal) < 0.0) normal += std::acos(-1.0);
  const double incidence = std::atan2(d.y, d.x) - normal;
  const double sine = before * std::sin(incidence) / after;
  if (std::fabs(sine) > 1.0) return std::nullopt;
  const double angle = normal + std::asin(sine);
  return Point{std::cos(angle), std::sin(angle)};
}

// A ray from a point in air.
inline Ray trace(const poreiaaktinon::Fakos& lens, double n, Point start, Point direction) {
  const double norm = std::hypot(direction.x, direction.y);
  const Point d{direction.x / norm, direction.y / norm};
  const auto one = stay(lens.xc1, lens.R1, start, d);
  const auto two = stay(lens.xc2, lens.R2, start, d);
  const auto free = [&] { return Ray{{start, d, farAway, 1.0}}; };
  if (!one || !two) return free();
  const double enter = std::max(one->enter, two->enter);
  if (enter >= std::min(one->leave, two->leave) || enter <= 0.0) return free();

  Ray ray{{start, d, enter, 1.0}};
  const Point in = along(start, d, enter);
  const auto inside = refracted(d, in, one->enter > two->enter ? lens.xc1 : lens.xc2, 1.0, n);
  if (!inside) return ray;
  const double leave1 = stay(lens.xc1, lens.R1, in, *inside)->leave;
  const double leave2 = stay(lens.xc2, lens.R2, in, *inside)->leave;
  ray.push_back({in, *inside, std::min(leave1, leave2), n});
  const Point out = along(in, *inside, ray.back().length);
  const auto beyond = refracted(*inside, out, leave1 < leave2 ? lens.xc1 : lens.xc2, n, 1.0);
  if (beyond) ray.push_back({out, *beyond, farAway, 1.0});
  return ray;
}

// Where a ray is at an optical path from its start; nothing beyond its end.
inline std::optional<Point> at(const Ray& ray, double opticalPath) {
  for (const Piece& piece : ray) {
    if (opticalPath < 0.0) return std::nullopt;
    if (opticalPath <= piece.index * piece.length) {
      return along(piece.from, piece.direction, opticalPath / piece.index);
    }
    opticalPath -= piece.index * piece.length;
  }
  return std::nullopt;
}

// The nearest point of a ray: how far from it a point stands, and the optical path up to there.
struct Footing {
  double distance;
  double opticalPath;
};
inline Footing footing(const Ray& ray, Point p) {
  Footing best{farAway, 0.0};
  double before = 0.0;
  for (const Piece& piece : ray) {
    const double s = std::clamp(
        (p.x - piece.from.x) * piece.direction.x + (p.y - piece.from.y) * piece.direction.y, 0.0,
        piece.length);
    const Point foot = along(piece.from, piece.direction, s);
    const double distance = std::hypot(p.x - foot.x, p.y - foot.y);
    if (distance < best.distance) best = {distance, before + piece.index * s};
    before += piece.index * piece.length;
  }
  return best;
}

}  // namespace lensbench::snell
