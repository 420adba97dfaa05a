// Optical path along a ray: its length, and the point that a wave has reached.
#pragma once

#include <optional>

#include "optics/poreiaaktinon/RayPath.h"

namespace lensbench::poreiaaktinon {

// Index of refraction along a piece of a path.
double indexOf(const RayPath& path, int piece);

// Optical length of a piece of a path, n times its length in the glass, user units.
double opticalLength(const RayPath& path, int piece);
// Of the whole path, from its start to its end.
double opticalLength(const RayPath& path);

// The point of a piece at an optical path counted from where the piece starts.
Point pointOnPiece(const RayPath& path, int piece, double opticalPath);

// Where a wave stands on a ray.
struct FrontPoint {
  Point position;
  Region region = Region::BeforeLens;
  FacesCrossed crossed{};  // the faces that lie behind the wave on this ray
};

// The point of a ray at optical path L, counted so that the ray starts at its phase; nothing before
// its start and beyond its end. A step s of optical path is s/n long in the glass.
std::optional<FrontPoint> pointAtOpticalPath(const RayPath& path, double L);

}  // namespace lensbench::poreiaaktinon
