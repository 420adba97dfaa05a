// Optical path along a ray: its length, and the point that a wave has reached.
#pragma once

#include <array>
#include <optional>

#include "optics/light/RayPath.h"

namespace lensbench::light {

// Index of refraction along a piece of a path.
double indexOf(const RayPath& path, const Piece& piece);

// Optical length of a piece of a path, n times its length in the glass, user units.
double opticalLength(const RayPath& path, const Piece& piece);

// The point of a piece at an optical path counted from where the piece starts.
Point pointOnPiece(const RayPath& path, const Piece& piece, double opticalPath);

// The faces that lie behind a wave on a ray, in order; None where it has crossed fewer.
using FacesCrossed = std::array<Side, 2>;

// Where a wave stands on a ray.
struct FrontPoint {
  Point position;
  FacesCrossed crossed{};
};

// The point of a ray at optical path L, counted so that the ray starts at its phase; nothing before
// its start and beyond its end. A step s of optical path is s/n long in the glass.
std::optional<FrontPoint> pointAtOpticalPath(const RayPath& path, double L);

}  // namespace lensbench::light
