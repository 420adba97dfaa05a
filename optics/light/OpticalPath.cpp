#include "optics/light/OpticalPath.h"

#include <cstddef>

#include "optics/light/Vector.h"

namespace lensbench::light {

double indexOf(const RayPath& path, const Piece& piece) {
  return piece.medium == Medium::Glass ? path.n : 1.0;
}

double opticalLength(const RayPath& path, const Piece& piece) {
  return indexOf(path, piece) * length(piece.to - piece.from);
}

Point pointOnPiece(const RayPath& path, const Piece& piece, double opticalPath) {
  const double whole = length(piece.to - piece.from);
  const double s = opticalPath / indexOf(path, piece);
  // From the nearer end, so that a start far outside the drawing area costs no digits within it.
  if (s <= 0.5 * whole) return piece.from + s * piece.direction;
  return piece.to - (whole - s) * piece.direction;
}

std::optional<FrontPoint> pointAtOpticalPath(const RayPath& path, double L) {
  double rest = L - path.phase;
  if (rest < 0.0) return std::nullopt;
  FacesCrossed crossed{};
  for (std::size_t i = 0; i < path.way().size(); ++i) {
    const Piece& piece = path.pieces[i];
    const double here = opticalLength(path, piece);
    if (rest <= here) return FrontPoint{pointOnPiece(path, piece, rest), crossed};
    rest -= here;
    if (i < crossed.size()) crossed[i] = path.meetings[i].face;
  }
  return std::nullopt;
}

}  // namespace lensbench::light
