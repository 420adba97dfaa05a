// A hyperbolic lens: two faces with glass between them.
#pragma once

#include <array>
#include <optional>

#include "canvas/Variant.h"
#include "optics/protosfakos/Face.h"

namespace lensbench::protosfakos {

// Light enters by one face and leaves by the other; both are convex, so once is all it can.
struct Glass {
  double a = 0.0;  // semi-axes of the hyperbolic faces, user units
  double b = 0.0;
  double n = 1.0;             // index of refraction; air outside
  std::array<Face, 2> faces;  // the left one, its vertex at (a, 0), and the right one

  // Where the two faces meet, x = 4a.
  double rimX() const noexcept { return 4.0 * a; }
};

// The lens between the hyperbola and the plane x = 4a. a = 0 or n = 0 is Division by zero (11).
Glass planoConvex(const Variant& a, const Variant& b, const Variant& n);
// The lens between the hyperbola and its mirror image about x = 4a; its right vertex is (7a, 0).
Glass biconvex(const Variant& a, const Variant& b, const Variant& n);

// The piece of the ray's line that is in the glass.
struct GlassChord {
  Chord chord;
  int enteredFace = 0;  // index of the face at chord.from; at the rim itself the right one
  int leftFace = 0;     // index of the face at chord.to
};
std::optional<GlassChord> throughGlass(const Glass& glass, const Ray& ray);

}  // namespace lensbench::protosfakos
