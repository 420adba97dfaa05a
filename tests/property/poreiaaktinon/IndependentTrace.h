// A second tracer, written for the tests alone: parametric quadratics and angles, in long double.
#pragma once

#include <optional>
#include <vector>

#include "optics/poreiaaktinon/Bench.h"

namespace lensbench::poreiaaktinon {

struct IndependentMeeting {
  long double x = 0.0L;
  long double y = 0.0L;
  long double t = 0.0L;          // distance from the start
  bool onCircle1 = false;        // else on circle 2
  long double halfChord = 0.0L;  // of the ray's line in that circle: small at grazing
};

// The nearest point ahead of the start where the ray's line meets a circle inside the other one.
std::optional<IndependentMeeting> firstMeeting(const Fakos& fakos, long double px, long double py,
                                               long double dx, long double dy, long double beyond);

struct Leg {
  long double x, y;   // where it starts
  long double angle;  // of travel, radians
  long double index;
};

// The legs of a ray that starts in the air; totallyReflected where it ends at a face.
struct IndependentTrace {
  std::vector<Leg> legs;
  bool totallyReflected = false;
  long double smallestCosine = 1.0L;  // of the angles at the faces: small means badly conditioned
};
IndependentTrace traceIndependently(const Fakos& fakos, double n, Point start, double angle);

// The point at an optical path from the start.
Point pointOn(const IndependentTrace& trace, long double opticalPath);

}  // namespace lensbench::poreiaaktinon
