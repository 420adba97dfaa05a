#include "optics/poreiaaktinon/Wavefront.h"

#include <cstddef>

#include "optics/light/Vector.h"

namespace lensbench::poreiaaktinon {
namespace {

double pieceLength(const RayPath& path, int piece) {
  const auto i = static_cast<std::size_t>(piece);
  return length(path.points[i + 1] - path.points[i]);
}

}  // namespace

double indexOf(const RayPath& path, int piece) {
  return path.regions[static_cast<std::size_t>(piece)] == Region::Glass ? path.n : 1.0;
}

double opticalLength(const RayPath& path, int piece) {
  return indexOf(path, piece) * pieceLength(path, piece);
}

double opticalLength(const RayPath& path) {
  double sum = 0.0;
  for (int piece = 0; piece < path.pieces; ++piece) sum += opticalLength(path, piece);
  return sum;
}

Point pointOnPiece(const RayPath& path, int piece, double opticalPath) {
  const auto i = static_cast<std::size_t>(piece);
  const double whole = pieceLength(path, piece);
  const double s = opticalPath / indexOf(path, piece);
  // From the nearer end, so that a start far outside the drawing area costs no digits within it.
  if (s <= 0.5 * whole) return path.points[i] + s * path.directions[i];
  return path.points[i + 1] - (whole - s) * path.directions[i];
}

std::optional<FrontPoint> pointAtOpticalPath(const RayPath& path, double L) {
  double rest = L - path.phase;
  if (rest < 0.0) return std::nullopt;
  FacesCrossed crossed{};
  for (int piece = 0; piece < path.pieces; ++piece) {
    const auto i = static_cast<std::size_t>(piece);
    const double here = opticalLength(path, piece);
    if (rest <= here) return FrontPoint{pointOnPiece(path, piece, rest), path.regions[i], crossed};
    rest -= here;
    if (i < crossed.size()) crossed[i] = path.faces[i];
  }
  return std::nullopt;
}

}  // namespace lensbench::poreiaaktinon
