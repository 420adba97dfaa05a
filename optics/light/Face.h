// The faces that a lens can have, and which part of a ray's line is on the glass side of each.
#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <variant>

#include "optics/light/Vector.h"

namespace lensbench::light {

// A half-line from start along the direction, which is of unit length; user units.
struct Ray {
  Point start;
  Point direction;

  constexpr Point at(double distance) const noexcept { return start + distance * direction; }
};

// Which way light goes through a lens.
enum class Travel { Left = -1, Right = 1 };

// Glass inside the circle. One of radius 0 holds no glass, and no ray meets it.
struct Circle {
  Point centre;
  double radius = 0.0;

  friend bool operator==(const Circle&, const Circle&) = default;
};

// The right branch of x²/a² - y²/b² = 1, glass inside it; mirrored about a vertical line where
// mirror has its abscissa. b = 0 is the axis from the vertex on.
struct Hyperbola {
  double a = 0.0;
  double b = 0.0;
  std::optional<double> mirror;

  friend bool operator==(const Hyperbola&, const Hyperbola&) = default;
};

// The plane x = const, glass to the left of it.
struct Plane {
  double x = 0.0;

  friend bool operator==(const Plane&, const Plane&) = default;
};

// The glass side of every face is convex, so a line is on it for one stretch or not at all.
using Face = std::variant<Circle, Hyperbola, Plane>;

// Where the line of a ray is on the glass side of a face: distances along the ray from the foot of
// the chord. For a circle that is the foot of the perpendicular from its centre, so that the ends
// lie on the circle however far away the ray starts; for the other faces it is the start of the
// ray. Infinite where the chord is unbounded; from >= to where there is none, as by default.
struct Chord {
  double from = std::numeric_limits<double>::infinity();
  double to = -std::numeric_limits<double>::infinity();
  double start = 0.0;  // of the ray
  double aside = 0.0;  // of the foot from the origin, counter-clockwise across the ray

  bool empty() const noexcept { return !(from < to); }
};
Chord glassSide(const Circle& circle, const Ray& ray);
Chord glassSide(const Hyperbola& hyperbola, const Ray& ray);
Chord glassSide(const Plane& plane, const Ray& ray);

// What the foot of a chord is measured from: the centre of a circle, or the start of the ray.
constexpr Point originOf(const Circle& circle, const Ray&) noexcept { return circle.centre; }
constexpr Point originOf(const Hyperbola&, const Ray& ray) noexcept { return ray.start; }
constexpr Point originOf(const Plane&, const Ray& ray) noexcept { return ray.start; }

// Unit normal of a face, out of the glass, at a point that is given relative to the centre of a
// circle, and to the origin of coordinates for the others. None at the vertex of a hyperbola, where
// rays are not refracted.
std::optional<Point> outwardNormal(const Circle& circle, Point fromCentre);
std::optional<Point> outwardNormal(const Hyperbola& hyperbola, Point p);
std::optional<Point> outwardNormal(const Plane& plane, Point p);

// Circles are here to be traced without a call.
inline Chord glassSide(const Circle& circle, const Ray& ray) {
  const Point fromCentre = ray.start - circle.centre;
  const double aside = dot(fromCentre, turned(ray.direction));
  const double rest = (circle.radius - aside) * (circle.radius + aside);
  const double half = rest > 0.0 ? std::sqrt(rest) : 0.0;
  return {-half, half, dot(fromCentre, ray.direction), aside};
}

inline std::optional<Point> outwardNormal(const Circle& circle, Point fromCentre) {
  return (1.0 / circle.radius) * fromCentre;
}

// A point of a face, and the normal there.
struct FacePoint {
  Point point;
  std::optional<Point> normal;
};
// The point at a distance along the ray from the foot of the chord.
inline FacePoint pointOf(const Circle& circle, const Ray& ray, const Chord& chord,
                         double distance) {
  const Point fromCentre = chord.aside * turned(ray.direction) + distance * ray.direction;
  return {circle.centre + fromCentre, outwardNormal(circle, fromCentre)};
}
template <class OpenFace>
FacePoint pointOf(const OpenFace& face, const Ray& ray, const Chord&, double distance) {
  const Point p = ray.at(distance);
  return {p, outwardNormal(face, p)};
}

}  // namespace lensbench::light
