// Waves that move: where the front of a set of rays stands, and when.
#pragma once

#include <cstddef>
#include <vector>

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Rays.h"

namespace lensbench::poreiaaktinon {

// A wave front: the wave point of each ray that has one, and the pieces that join the points of
// neighbouring rays which have crossed the same faces.
struct Front {
  struct Piece {
    Point from;
    Point to;
  };
  std::vector<Point> points;
  std::vector<Piece> pieces;
};
// The front at an optical path, counted as the rays count theirs, user units.
Front frontAt(const Sent& sent, double opticalPath);

// The optical path that a front advances in one step: 250 units of path per unit of time, in steps
// of a hundredth.
inline constexpr double pathPerStep = 250.0 * 0.01;
// The second front follows this many steps behind the first.
inline constexpr int stepsBehind = 40;

// How many rays may carry moving waves; they are numbered from 0 to 1500.
inline constexpr std::size_t mostRays = 1501;
// Subscript out of range (9), in words, for more rays.
void requireRoomFor(std::size_t rays);

}  // namespace lensbench::poreiaaktinon
