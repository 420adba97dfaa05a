// The faces that a lens can have, and which part of a ray's line is on the glass side of each.
#pragma once

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

// Glass inside the circle. One of radius 0 holds no glass, and no ray meets it.
struct Circle {
  Point centre;
  double radius = 0.0;

  friend bool operator==(const Circle& a, const Circle& b) {
    return a.centre.x == b.centre.x && a.centre.y == b.centre.y && a.radius == b.radius;
  }
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
// the chord, a point of the line that is given relative to an origin. For a circle that is the foot
// of the perpendicular from its centre, so that the ends lie on the circle however far away the ray
// starts; for the other faces it is the start of the ray. Infinite where the stretch is unbounded;
// from >= to where there is none.
struct Chord {
  Point origin;
  Point foot;          // relative to the origin
  double start = 0.0;  // of the ray
  double from = 0.0;
  double to = 0.0;

  bool empty() const noexcept { return !(from < to); }
};
Chord glassSide(const Face& face, const Ray& ray);

// A point of a face, user units, and the unit normal there, out of the glass. There is none at the
// vertex of a hyperbola, where rays are not refracted.
struct FacePoint {
  Point point;
  std::optional<Point> normal;
};
// The point of the face at a distance along the ray from the foot of the chord.
FacePoint pointOf(const Face& face, const Chord& chord, Point direction, double distance);

}  // namespace lensbench::light
