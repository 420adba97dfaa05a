#include "optics/light/Face.h"

#include <utility>

namespace lensbench::light {
namespace {

// Half-height, in user units, below which a point of a hyperbola is its vertex: more than what is
// lost in rounding, less than the semi-axis b of any lens but that of index 1.
constexpr double vertexHeight = 1e-9;

constexpr double unbounded = std::numeric_limits<double>::infinity();

constexpr Point mirroredVector(Point v) { return {-v.x, v.y}; }
constexpr Point mirroredPoint(Point p, double about) { return {2.0 * about - p.x, p.y}; }

// With k = b/a a point is inside one of the branches where k²x² - y² >= b². Along the line that is
// A·t² + 2·B·t + C >= 0. The discriminant is formed from the line's moment about the origin, where
// B² - A·C would cancel, and the root that cancels comes from the product of the roots.
Chord insideRightBranch(double a, double b, const Ray& ray) {
  const auto [p, d] = ray;
  if (b == 0.0) {
    if (p.y != 0.0 || d.y != 0.0) return {};
    const double vertex = (a - p.x) / d.x;
    return d.x > 0.0 ? Chord{vertex, unbounded} : Chord{-unbounded, vertex};
  }
  const double k = b / a;
  const double A = (k * d.x - d.y) * (k * d.x + d.y);
  const double B = k * p.x * k * d.x - p.y * d.y;
  const double C = (k * p.x - p.y) * (k * p.x + p.y) - b * b;
  const double moment = cross(p, d);
  const double discriminant = k * k * moment * moment + A * b * b;
  if (discriminant < 0.0) return {};
  const double q = -(B + std::copysign(std::sqrt(discriminant), B));
  if (q == 0.0) return {};
  double first = C / q;
  if (A == 0.0) {
    if (B > 0.0) return d.x > 0.0 ? Chord{first, unbounded} : Chord{};
    return d.x < 0.0 ? Chord{-unbounded, first} : Chord{};
  }
  double second = q / A;
  if (first > second) std::swap(first, second);
  if (A > 0.0) return d.x > 0.0 ? Chord{second, unbounded} : Chord{-unbounded, first};
  if (p.x + 0.5 * (first + second) * d.x < 0.0) return {};
  return {first, second};
}

}  // namespace

Chord glassSide(const Hyperbola& hyperbola, const Ray& ray) {
  const auto& [a, b, mirror] = hyperbola;
  if (!mirror) return insideRightBranch(a, b, ray);
  return insideRightBranch(a, b,
                           {mirroredPoint(ray.start, *mirror), mirroredVector(ray.direction)});
}

Chord glassSide(const Plane& plane, const Ray& ray) {
  const double dx = ray.direction.x;
  const double ahead = plane.x - ray.start.x;
  if (dx == 0.0) return ahead < 0.0 ? Chord{} : Chord{-unbounded, unbounded};
  return dx < 0.0 ? Chord{ahead / dx, unbounded} : Chord{-unbounded, ahead / dx};
}

// The gradient of y²/b² - x²/a², which points out of the glass, at length 1.
std::optional<Point> outwardNormal(const Hyperbola& hyperbola, Point p) {
  const auto& [a, b, mirror] = hyperbola;
  if (mirror) p = mirroredPoint(p, *mirror);
  if (std::fabs(p.y) < vertexHeight) return std::nullopt;
  const double k = b / a;
  const Point gradient{-k * k * p.x, p.y};
  const Point normal = (1.0 / length(gradient)) * gradient;
  return mirror ? mirroredVector(normal) : normal;
}

std::optional<Point> outwardNormal(const Plane&, Point) { return Point{1.0, 0.0}; }

}  // namespace lensbench::light
