// A face of a lens: what part of a ray is on its glass side, and its normal.
#pragma once

#include <optional>
#include <variant>

#include "optics/light/Vector.h"

namespace lensbench::protosfakos {

// A half-line from start along the unit vector direction, user units.
struct Ray {
  Point start;
  Point direction;

  constexpr Point at(double distance) const noexcept { return start + distance * direction; }
};

// A piece of the line of a ray, in distances from its start; infinite where the piece is unbounded.
struct Chord {
  double from = 0.0;
  double to = 0.0;
};

// The right branch of x²/a² - y²/b² = 1, glass inside it; mirrored about x = 4a where it is the
// second face of a biconvex lens. b = 0 is the axis from the vertex on.
struct HyperbolicFace {
  double a = 0.0;
  double b = 0.0;
  bool mirrored = false;
};

// The plane x = const, glass to the left of it.
struct PlaneFace {
  double x = 0.0;
};

// The glass side of every face is convex, so a line is on it for one piece or not at all.
using Face = std::variant<HyperbolicFace, PlaneFace>;

// Where the ray's line is on the glass side of the face.
std::optional<Chord> glassSide(const Face& face, const Ray& ray);

// Unit normal at a point of the face, out of the glass. None at the vertex of a hyperbola, where
// rays are not refracted.
std::optional<Point> outwardNormal(const Face& face, Point p);

}  // namespace lensbench::protosfakos
