// What light meets on the bench of spherical lenses.
#pragma once

#include <optional>

#include "optics/light/Tracer.h"

namespace lensbench::poreiaaktinon {

using light::Diafragma;

// fakos: lens, the common region of two circles on the axis y = 0, user units. The left face is an
// arc of circle 2, the right face an arc of circle 1.
struct Fakos {
  double xc1 = 0.0;  // centre of the left circle, circle 1
  double R1 = 0.0;
  double xc2 = 0.0;  // centre of the right circle, circle 2
  double R2 = 0.0;

  friend bool operator==(const Fakos&, const Fakos&) = default;
};

// True when the circles cross and enclose some glass.
bool hasLens(const Fakos& fakos);

// Abscissas of the vertices of a lens.
double leftVertex(const Fakos& fakos);
double rightVertex(const Fakos& fakos);

// Everything that a ray can meet on its way.
struct Bench {
  Fakos fakos;
  double n = 1.0;                      // index of refraction of the lens over that around it
  std::optional<Diafragma> diafragma;  // nothing: no ray is stopped

  friend bool operator==(const Bench&, const Bench&) = default;
};

// The bench as rays are traced through it; rays end at the edges. Without a lens no ray meets a
// face. An index of 0 is Division by zero (11).
light::Lens lensOf(const Bench& bench);
light::Conditions conditionsOf(const Bench& bench, const light::Edges& edges);

}  // namespace lensbench::poreiaaktinon
