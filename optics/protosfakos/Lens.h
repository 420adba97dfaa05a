// Hyperbolic lenses as light meets them, and the path of a ray through one.
#pragma once

#include <optional>

#include "optics/light/Tracer.h"

namespace lensbench::protosfakos {

using light::Diafragma;
using light::Travel;

// The lens between the hyperbola and the plane x = 4a; its left vertex is (a, 0). a = 0 or n = 0 is
// Division by zero (11).
light::Lens planoConvex(double a, double b, double n);
// The lens between the hyperbola and its mirror image about x = 4a; its right vertex is (7a, 0).
light::Lens biconvex(double a, double b, double n);

// A ray of the given slope that travels to the right or to the left. Exact also for the slope that
// Tan gives for 90 degrees.
light::Ray rayWithSlope(Point start, double slope, Travel travel);

// Follows a ray through a hyperbolic lens, 530 on behind it, 100 when it misses. A diaphragm counts
// only before the lens: on the way to the entry point, or, for a ray that misses, to the plane of
// the rim. phase is the optical path at the start.
light::RayPath trace(const light::Lens& lens, const light::Ray& ray,
                     const std::optional<Diafragma>& diafragma, double phase = 0.0);

// True when the ray leaves the lens behind it.
bool emerged(const light::RayPath& path);

}  // namespace lensbench::protosfakos
