// Refraction at one circular surface, and the diaphragm that a ray may be stopped by.
#pragma once

#include <cmath>
#include <optional>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench::poreiaaktinon {

// DiathlasiApotelesma: unit direction of the refracted ray; ok false, direction (0, 0), at total
// internal reflection.
struct DiathlasiApotelesma {
  float dx = 0.0f;
  float dy = 0.0f;
  Boolean ok = 0;
};

// DiafragmaApotelesma: the point where a ray is stopped, or its own start when it passes.
struct DiafragmaApotelesma {
  float x = 0.0f;
  float y = 0.0f;
  Boolean blocked = 0;
};

// sxetikosdeiktis: relative index for a ray along (dx, dy) that crosses the circle (cx, cy), r at
// (px, py): n into the circle, 1/n out of it or along its tangent.
Variant sxetikosdeiktis(const Variant& dx, const Variant& dy, const Variant& px, const Variant& py,
                        const Variant& cx, const Variant& cy, const Variant& r, const Variant& n);

// diathlasi: Snell's law, n1 sin a1 = n2 sin a2, for a ray along (dx, dy), of any length, that
// meets the circle (cx, cy), r at (px, py); n is the index inside over that outside. r = 0, n = 0
// or a zero direction is Division by zero (11).
DiathlasiApotelesma diathlasi(const Variant& dx, const Variant& dy, const Variant& px,
                              const Variant& py, const Variant& cx, const Variant& cy,
                              const Variant& r, const Variant& n);

// elegxosdiafragmatos: whether the line of a ray from (x0, y0) along (dx, dy) misses the opening
// from yB to yA, ends included, of a diaphragm on x = X. The whole line is tested, behind the start
// too; a vertical ray is tested at its start, and one so steep that its slope is no number is
// Overflow (6).
DiafragmaApotelesma elegxosdiafragmatos(const Variant& X, const Variant& yA, const Variant& yB,
                                        const Variant& x0, const Variant& y0, const Variant& dx,
                                        const Variant& dy);

// The same test in double: where the diaphragm stops the line, nothing when it passes. A ray so
// steep that its slope is no number counts as vertical.
std::optional<Point> stoppedAt(const Diafragma& diafragma, Point start, Point direction);

// Snell's law in double. direction and normal are of unit length, ratio is the index on this side
// over that on the far side. The ray keeps its side of the normal and its sense of travel. Returns
// a unit direction, nothing at total reflection.
inline std::optional<Point> refracted(Point direction, Point normal, double ratio) {
  const Point tangent = turned(normal);
  const double sine = ratio * dot(direction, tangent);
  if (std::fabs(sine) > 1.0) return std::nullopt;
  const double cosine =
      std::copysign(std::sqrt((1.0 - sine) * (1.0 + sine)), dot(direction, normal));
  return sine * tangent + cosine * normal;
}

}  // namespace lensbench::poreiaaktinon
