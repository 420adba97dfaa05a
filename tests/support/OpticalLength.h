// Optical length of a whole path.
#pragma once

#include "optics/light/OpticalPath.h"

namespace lensbench::light {

// From the start of the path to its end, user units.
inline double opticalLength(const RayPath& path) {
  double sum = 0.0;
  for (const Piece& piece : path.way()) sum += opticalLength(path, piece);
  return sum;
}

}  // namespace lensbench::light
