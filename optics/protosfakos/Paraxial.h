// Where a hyperbolic lens images a point, by light close to the axis.
#pragma once

#include <optional>

#include "canvas/Canvas.h"
#include "optics/protosfakos/Scene.h"

namespace lensbench::protosfakos {

struct Image {
  Point at;           // user units
  bool real = false;  // light goes through it; false: it only seems to come from it
};

// The image of a source outside the lens; nothing for a source within, for a lens without height,
// and where light leaves as parallel rays.
std::optional<Image> paraxialImage(const Asked& asked, Point source);

}  // namespace lensbench::protosfakos
