// What light meets on the bench of spherical lenses.
#pragma once

#include <optional>

#include "optics/light/Stop.h"

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

// Everything that a ray can meet on its way.
struct Bench {
  Fakos fakos;
  double n = 1.0;                      // index of refraction of the lens over that around it
  std::optional<Diafragma> diafragma;  // nothing: no ray is stopped

  friend bool operator==(const Bench&, const Bench&) = default;
};

}  // namespace lensbench::poreiaaktinon
