// The search for the next point at which a ray meets the lens, and the lens as that search sees it.
//
// The lens is convex, the common region of two discs: a ray is inside it where it is inside both,
// so it enters by the later of the two entries and leaves by the earlier of the two exits.
#pragma once

#include <cstdint>
#include <optional>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench::poreiaaktinon {

// The left face is an arc of circle 2, the right face an arc of circle 1.
enum class Face : std::uint8_t { None, Left, Right };

// True when the circles cross and enclose some glass.
bool hasLens(const Fakos& fakos);

// A point where a ray crosses the boundary of the lens.
struct Crossing {
  Point point;
  Point normal;  // of unit length, out of the circle of the face
  Face face = Face::None;
  bool entering = false;
};

// The first crossing ahead of the start along the unit direction; the circles must cross. A start
// within 0.0005 of a radius of a face stands on it: heading in it is in the glass already, heading
// out or along the tangent it has left the lens. A ray tangent to a circle misses.
std::optional<Crossing> firstCrossing(const Fakos& fakos, Point start, Point direction);

// The crossing at which a ray leaves the lens, from a point of the lens along the unit direction.
Crossing exitCrossing(const Fakos& fakos, Point start, Point direction);

// DiadromiApotelesma: the point where a ray meets the lens, the start point when it does not.
struct DiadromiApotelesma {
  double x = 0.0;
  double y = 0.0;
  Boolean found = 0;
  std::int16_t tag = 0;  // the caller's, handed back; 0 when the circles do not cross
};

// diadromiaktinas: the next point where the ray from (px, py) along (dx, dy) meets the lens. A
// point of exactly (0, 0) counts as not found. Sets the workbench's DrawWidth to 1 when the ray's
// line meets both circles. A tag beyond 16 bits is Overflow (6).
void diadromiaktinas(DiadromiApotelesma& result, const Variant& xc1, const Variant& xc2,
                     const Variant& R1, const Variant& R2, const Variant& dx, const Variant& dy,
                     const Variant& px, const Variant& py, const Variant& tag);

// diadromiaktinas2: the same search; no tag, and it leaves the workbench alone.
void diadromiaktinas2(DiadromiApotelesma& result, const Variant& xc1, const Variant& xc2,
                      const Variant& R1, const Variant& R2, const Variant& dx, const Variant& dy,
                      const Variant& px, const Variant& py);

}  // namespace lensbench::poreiaaktinon
