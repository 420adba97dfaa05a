// The workbench as it opens.
#pragma once

#include <numbers>

#include "tests/property/poreiaaktinon/RandomBench.h"

namespace lensbench::poreiaaktinon {

inline constexpr Fakos openingLens{-50.0, 100.0, 20.0, 90.0};
inline constexpr double openingIndex = 1.5;
// Between the rays of its fan, degrees.
inline constexpr double openingStep = std::numbers::pi * 30.0 / 20.0;

inline light::RayPath tracedOnBench(Point start, Point direction) {
  return traced({openingLens, openingIndex, {}}, start, direction);
}

// Where a ray that leaves a lens crosses the axis.
inline double crossing(const light::RayPath& path) {
  const light::Piece& last = path.way().back();
  return last.from.x - last.from.y * last.direction.x / last.direction.y;
}

}  // namespace lensbench::poreiaaktinon
