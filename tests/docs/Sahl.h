// The hyperbolic lenses of an index.
#pragma once

#include <optional>

#include "optics/protosfakos/Scene.h"
#include "tests/property/protosfakos/RandomRays.h"

namespace lensbench::protosfakos {

// The index that the examples are given for.
inline constexpr double exampleIndex = 1.5;

inline light::Lens lensOf(bool amfikyrtos, double n) {
  const HyperbolaAxes axes = deriveLens(n).value();
  return (amfikyrtos ? biconvex : planoConvex)(axes.a, axes.b, n);
}

// With no diaphragm.
inline light::RayPath traced(const light::Lens& glass, const light::Ray& ray) {
  return trace(glass, ray, std::nullopt);
}

// Where the line of a piece crosses the axis.
inline double crossing(const light::Piece& piece) {
  return piece.from.x - piece.from.y * piece.direction.x / piece.direction.y;
}

}  // namespace lensbench::protosfakos
