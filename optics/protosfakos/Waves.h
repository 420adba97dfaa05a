// Wavefronts: points of equal optical path on the rays that leave the lens.
#pragma once

#include <array>
#include <span>

#include "canvas/Variant.h"
#include "optics/light/RayPath.h"

namespace lensbench::protosfakos {

// Fronts 1..30 are drawn; 0 is where a ray starts.
constexpr int lastFront = 30;
// Optical path from one front to the next, which is their distance in air, user units.
constexpr double frontSpacing = 4.0;

// What is kept of a ray that leaves the lens, and its wave points, user units.
struct Recorded {
  Point entry;  // first and last point in the glass
  Point exit;
  float directionX = 0.0F;  // of the emerging ray, negated; Singles, of any length
  float directionY = 0.0F;
  std::array<Point, lastFront + 1> kymata;  // waves
};

Recorded record(const light::RayPath& path);

// Lays the wave points of a ray that starts at start: front 0 is the start, front j is at optical
// path 4·(j - 1) from it. n is the index of refraction; 0 is Division by zero (11).
void layFronts(Recorded& ray, Point start, double n);

// True when the optical length of the glass is negative, as only a negative index makes it.
bool arnhtiko(const Recorded& ray, double n);

// kymata: waves. A wave point by ray and front. Empty for a ray that is not recorded; a ray outside
// 0..600 and a front outside 0..30 are Subscript out of range (9).
Variant kymataX(std::span<const Recorded> rays, int ray, int front);
Variant kymataY(std::span<const Recorded> rays, int ray, int front);

}  // namespace lensbench::protosfakos
