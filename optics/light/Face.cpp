#include "optics/light/Face.h"

#include <cmath>
#include <limits>
#include <utility>

namespace lensbench::light {
namespace {

// Half-height, in user units, below which a point of a hyperbola is its vertex: more than what is
// lost in rounding, less than the semi-axis b of any lens but that of index 1.
constexpr double vertexHeight = 1e-9;

constexpr double unbounded = std::numeric_limits<double>::infinity();

struct Stretch {
  double from = unbounded;
  double to = -unbounded;
};

constexpr Point mirroredVector(Point v) { return {-v.x, v.y}; }
constexpr Point mirroredPoint(Point p, double about) { return {2.0 * about - p.x, p.y}; }

// With k = b/a a point is inside one of the branches where k²x² - y² >= b². Along the line that is
// A·t² + 2·B·t + C >= 0. The discriminant is formed from the line's moment about the origin, where
// B² - A·C would cancel, and the root that cancels comes from the product of the roots.
Stretch insideRightBranch(double a, double b, const Ray& ray) {
  const auto [p, d] = ray;
  if (b == 0.0) {
    if (p.y != 0.0 || d.y != 0.0) return {};
    const double vertex = (a - p.x) / d.x;
    return d.x > 0.0 ? Stretch{vertex, unbounded} : Stretch{-unbounded, vertex};
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
    if (B > 0.0) return d.x > 0.0 ? Stretch{first, unbounded} : Stretch{};
    return d.x < 0.0 ? Stretch{-unbounded, first} : Stretch{};
  }
  double second = q / A;
  if (first > second) std::swap(first, second);
  if (A > 0.0) return d.x > 0.0 ? Stretch{second, unbounded} : Stretch{-unbounded, first};
  if (p.x + 0.5 * (first + second) * d.x < 0.0) return {};
  return {first, second};
}

Stretch stretchOf(const Hyperbola& face, const Ray& ray) {
  if (!face.mirror) return insideRightBranch(face.a, face.b, ray);
  return insideRightBranch(face.a, face.b,
                           {mirroredPoint(ray.start, *face.mirror), mirroredVector(ray.direction)});
}

Stretch stretchOf(const Plane& face, const Ray& ray) {
  const double dx = ray.direction.x;
  if (dx == 0.0) {
    if (ray.start.x > face.x) return {};
    return {-unbounded, unbounded};
  }
  const double crossing = (face.x - ray.start.x) / dx;
  return dx < 0.0 ? Stretch{crossing, unbounded} : Stretch{-unbounded, crossing};
}

Chord chordFromStart(const Stretch& stretch) { return {0.0, 0.0, stretch.from, stretch.to}; }

}  // namespace

Chord glassSide(const Hyperbola& hyperbola, const Ray& ray) {
  return chordFromStart(stretchOf(hyperbola, ray));
}

Chord glassSide(const Plane& plane, const Ray& ray) {
  return chordFromStart(stretchOf(plane, ray));
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
