#include "optics/protosfakos/Face.h"

#include <cmath>
#include <limits>
#include <utility>

namespace lensbench::protosfakos {
namespace {

// Half-height, in user units, below which a point of a hyperbola is its vertex: more than what is
// lost in rounding, less than the semi-axis b of any lens but that of index 1.
constexpr double vertexHeight = 1e-9;

constexpr double unbounded = std::numeric_limits<double>::infinity();

constexpr Point mirroredVector(Point v) { return {-v.x, v.y}; }
constexpr Point mirroredPoint(Point p, double a) { return {8.0 * a - p.x, p.y}; }

// With k = b/a a point is inside one of the branches where k²x² - y² >= b². Along the line that is
// A·t² + 2·B·t + C >= 0. The discriminant is formed from the line's moment about the origin, where
// B² - A·C would cancel, and the root that cancels comes from the product of the roots.
std::optional<Chord> insideRightBranch(double a, double b, const Ray& ray) {
  const auto [p, d] = ray;
  if (b == 0.0) {
    if (p.y != 0.0 || d.y != 0.0) return std::nullopt;
    const double vertex = (a - p.x) / d.x;
    return d.x > 0.0 ? Chord{vertex, unbounded} : Chord{-unbounded, vertex};
  }
  const double k = b / a;
  const double A = (k * d.x - d.y) * (k * d.x + d.y);
  const double B = k * p.x * k * d.x - p.y * d.y;
  const double C = (k * p.x - p.y) * (k * p.x + p.y) - b * b;
  const double moment = cross(p, d);
  const double discriminant = k * k * moment * moment + A * b * b;
  if (discriminant < 0.0) return std::nullopt;
  const double q = -(B + std::copysign(std::sqrt(discriminant), B));
  if (q == 0.0) return std::nullopt;
  double first = C / q;
  if (A == 0.0) {
    if (B > 0.0) return d.x > 0.0 ? std::optional(Chord{first, unbounded}) : std::nullopt;
    return d.x < 0.0 ? std::optional(Chord{-unbounded, first}) : std::nullopt;
  }
  double second = q / A;
  if (first > second) std::swap(first, second);
  if (A > 0.0) return d.x > 0.0 ? Chord{second, unbounded} : Chord{-unbounded, first};
  if (p.x + 0.5 * (first + second) * d.x < 0.0) return std::nullopt;
  return Chord{first, second};
}

std::optional<Chord> chordOf(const HyperbolicFace& face, const Ray& ray) {
  if (!face.mirrored) return insideRightBranch(face.a, face.b, ray);
  return insideRightBranch(face.a, face.b,
                           {mirroredPoint(ray.start, face.a), mirroredVector(ray.direction)});
}

std::optional<Chord> chordOf(const PlaneFace& face, const Ray& ray) {
  const double dx = ray.direction.x;
  if (dx == 0.0) {
    if (ray.start.x > face.x) return std::nullopt;
    return Chord{-unbounded, unbounded};
  }
  const double crossing = (face.x - ray.start.x) / dx;
  return dx < 0.0 ? Chord{crossing, unbounded} : Chord{-unbounded, crossing};
}

// The gradient of y²/b² - x²/a², which points out of the glass, at length 1.
std::optional<Point> normalOf(const HyperbolicFace& face, Point p) {
  if (face.mirrored) p = mirroredPoint(p, face.a);
  if (std::fabs(p.y) < vertexHeight) return std::nullopt;
  const double k = face.b / face.a;
  const Point gradient{-k * k * p.x, p.y};
  const Point normal = (1.0 / length(gradient)) * gradient;
  return face.mirrored ? mirroredVector(normal) : normal;
}

std::optional<Point> normalOf(const PlaneFace&, Point) { return Point{1.0, 0.0}; }

}  // namespace

std::optional<Chord> glassSide(const Face& face, const Ray& ray) {
  return std::visit([&](const auto& f) { return chordOf(f, ray); }, face);
}

std::optional<Point> outwardNormal(const Face& face, Point p) {
  return std::visit([&](const auto& f) { return normalOf(f, p); }, face);
}

}  // namespace lensbench::protosfakos
