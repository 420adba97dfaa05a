// Traces a ray through a lens of two faces: where it meets them, how it is refracted there, where
// the diaphragm stops it and where it ends.
#pragma once

#include <optional>
#include <variant>

#include "optics/light/Edges.h"
#include "optics/light/Face.h"
#include "optics/light/RayPath.h"
#include "optics/light/Refraction.h"
#include "optics/light/Stop.h"

namespace lensbench::light {

// The glass that is on the glass side of both faces, with air around it.
struct Lens {
  Face left;
  Face right;
  double n = 1.0;  // index of the glass over that of the air, not 0

  friend bool operator==(const Lens&, const Lens&) = default;
};

// How long the last piece of a path is, user units.
struct Lengths {
  double missing = 0.0;   // of a ray that misses the lens
  double emerging = 0.0;  // behind the lens
};

// What spherical and hyperbolic lenses define differently.
struct Conditions {
  // Circles only: a start within so many radii of a face stands on it. Heading in it is in the
  // glass already; heading out or along the tangent it has left the lens, so that no ray finds its
  // own start again.
  double onFace = 0.0;

  // A stretch of glass no longer than this is none, and a start no deeper in the glass than this
  // along the ray still has to enter; user units.
  double touching = 0.0;

  Grazing grazing = Grazing::AlongTangent;

  // Whether the face by which light entered lets it out again. Where a lens can be more than half a
  // circle light does leave by it; otherwise the ray ends there, Trapped.
  bool outAsIn = true;

  // Nothing: no ray is stopped.
  std::optional<Diafragma> diafragma;

  // Nothing: the diaphragm is met on every straight piece, both ends included. Otherwise only on
  // the way before the lens, the start itself not counted: up to the entry, or, for a ray that
  // misses the lens, up to this abscissa.
  std::optional<double> beforeLens;

  // Where the last piece ends: at the edges of the drawing area, or after a length.
  std::variant<Edges, Lengths> end;

  // The face that light enters by where it meets both at once, at the rim.
  Side enteredAtRim = Side::Right;
};

// The path of a ray whose optical path at the start is phase. A start in the glass makes the first
// piece a piece of glass. A ray that leaves the lens beyond the edges and moves on away from them
// ends there.
RayPath trace(const Lens& lens, const Ray& ray, const Conditions& conditions, double phase = 0.0);

}  // namespace lensbench::light
