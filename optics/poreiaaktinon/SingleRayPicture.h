// What the single-ray screen shows, as a value.
//
// Lengths in user units. Circle 1 stands at xc1, the origin on the screen; circle 2 at xc2, which
// is also taken as the distance of the centres. The right face is the arc of circle 1 around angle
// 0, the left face the arc of circle 2 around angle pi.
#pragma once

#include <variant>
#include <vector>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Rays.h"

namespace lensbench::poreiaaktinon::single {

// The lens of this screen: its circles, and where its faces meet and how far they reach.
struct Outline {
  double R1 = 0.0;
  double R2 = 0.0;
  double xc1 = 0.0;
  double xc2 = 0.0;
  Variant f;            // lensmaker focal length, Empty where it is infinite
  double x0 = 0.0;      // abscissa of the common chord
  double h = 0.0;       // ordinate of the upper rim point; 0 for circles that do not cross
  double h2 = 0.0;      // ordinate of the lower rim point
  double alpha1 = 0.0;  // half-angle of the right face, arc sine of h / R1, radians
  double alpha2 = 0.0;  // half-angle of the left face, arc sine of h / R2, radians

  friend bool operator==(const Outline&, const Outline&) = default;
};
// Why circles have no outline; circle 2 stands at xc2, circle 1 at the origin.
enum class NoOutline { None, PointCircle, SameCircle };
NoOutline noOutline(Variant R1, Variant R2, Variant xc2);
// Division by zero (11), in words, for a radius of 0 and for circles that are one and the same.
// Kept on purpose: the half-angles are arc sines, which never exceed a right angle, so a face
// of more than half a circle is outlined too short.
Outline outlineOf(Variant R1, Variant R2, Variant xc1, Variant xc2, Variant deiktis);

// The line from the source to where the ray is aimed.
struct AimLine {
  Point from;
  Point to;

  friend bool operator==(const AimLine&, const AimLine&) = default;
};
// The faces and the focal marks.
struct LensAlone {
  Outline outline;

  friend bool operator==(const LensAlone&, const LensAlone&) = default;
};
// What lies under a ray, twice over: focal marks, faces, and the lines along the top and the bottom
// of the lens; the second time with marks at the rim.
struct LensUnderRay {
  Outline outline;

  friend bool operator==(const LensUnderRay&, const LensUnderRay&) = default;
};
// The ray, red in all its pieces.
struct Ray {
  Sent sent;

  friend bool operator==(const Ray&, const Ray&) = default;
};

using Layer = std::variant<AimLine, LensAlone, LensUnderRay, Ray>;

struct Shown {
  std::vector<Layer> layers;

  friend bool operator==(const Shown&, const Shown&) = default;
};

// The direction, not of unit length, of a ray from one point that is aimed at another. Division by
// zero (11), in words, when one stands exactly above the other.
Point aimedDirection(float xs, float ys, float xa, float ya);

// Found by the pictures that they fit and leave untraced.
using poreiaaktinon::fittedTo;
using poreiaaktinon::untraced;
void draw(Canvas& canvas, const Shown& shown);
void redraw(Canvas& canvas, const Shown& from, const Shown& to);

}  // namespace lensbench::poreiaaktinon::single
