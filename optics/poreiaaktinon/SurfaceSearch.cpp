#include "optics/poreiaaktinon/SurfaceSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Intersection.h"

namespace lensbench::poreiaaktinon {
namespace {

// How far from its face a point may be, in radii, and still stand on it.
constexpr double onFace = 0.0005;

struct Disc {
  Point centre;
  double radius = 0.0;
  Face face = Face::None;
};
Disc disc1(const Fakos& fakos) { return {{fakos.xc1, 0.0}, fakos.R1, Face::Right}; }
Disc disc2(const Fakos& fakos) { return {{fakos.xc2, 0.0}, fakos.R2, Face::Left}; }

// Where a line runs inside a disc. It is measured from the foot of the perpendicular from the
// centre, so that its ends lie on the circle however far away or steep the ray is.
struct Chord {
  Point foot;           // relative to the centre
  double middle = 0.0;  // distance from the start to the foot along the ray
  double half = 0.0;    // half the chord; 0 when the line does not enter the disc

  double leave() const { return middle + half; }
};

Chord chordOf(const Disc& disc, Point start, Point direction) {
  const Point fromCentre = start - disc.centre;
  const Point side = turned(direction);
  const double q = dot(fromCentre, side);
  const double rest = (disc.radius - q) * (disc.radius + q);
  return {q * side, -dot(fromCentre, direction), rest > 0.0 ? std::sqrt(rest) : 0.0};
}

Crossing crossingAt(const Disc& disc, const Chord& chord, Point direction, bool entering) {
  const double along = entering ? -chord.half : chord.half;
  const Point fromCentre = chord.foot + along * direction;
  return {disc.centre + fromCentre, (1.0 / disc.radius) * fromCentre, disc.face, entering};
}

bool within(const Disc& disc, Point p, double radii) {
  const double limit = radii * disc.radius;
  const Point fromCentre = p - disc.centre;
  return dot(fromCentre, fromCentre) <= limit * limit;
}

bool circlesCross(const Fakos& fakos) {
  return tomikyklonaxona(fakos.xc1, fakos.xc2, fakos.R1, fakos.R2).found != 0;
}

bool meetsBothCircles(const Fakos& fakos, Point start, Point direction) {
  return chordOf(disc1(fakos), start, direction).half > 0.0 &&
         chordOf(disc2(fakos), start, direction).half > 0.0;
}

// What both named searches learn about a ray.
struct Search {
  bool circlesCross = false;
  bool lineMeetsBoth = false;  // the whole line, behind the start too
  DiadromiApotelesma result;
};

Search search(const Fakos& fakos, Point start, Point direction) {
  Search known{circlesCross(fakos), false, {start.x, start.y, 0, 0}};
  if (isZero(direction) || !known.circlesCross) return known;
  const Point ahead = unit(direction);
  known.lineMeetsBoth = meetsBothCircles(fakos, start, ahead);
  const auto crossing = firstCrossing(fakos, start, ahead);
  if (crossing && !isZero(crossing->point)) {
    known.result = {crossing->point.x, crossing->point.y, boolean(true), 0};
  }
  return known;
}

}  // namespace

bool hasLens(const Fakos& fakos) {
  const double distance = std::fabs(fakos.xc2 - fakos.xc1);
  const double nested = std::fabs(fakos.R2 - fakos.R1);
  if (fakos.R1 <= 0.0 || fakos.R2 <= 0.0) return false;
  if (distance >= fakos.R1 + fakos.R2 || distance < nested) return false;
  // A circle that touches the other from inside may be lost by a rounding.
  return distance > nested || circlesCross(fakos);
}

std::optional<Crossing> firstCrossing(const Fakos& fakos, Point start, Point direction) {
  const Disc one = disc1(fakos);
  const Disc two = disc2(fakos);
  const Chord chord1 = chordOf(one, start, direction);
  const Chord chord2 = chordOf(two, start, direction);
  if (chord1.half == 0.0 || chord2.half == 0.0) return std::nullopt;

  // Along the ray from foot 1, so that a start far away does not cost the digits of the lens.
  const double from = -chord1.middle;
  const double foot2 = dot(two.centre - one.centre, direction);
  const double enter1 = -chord1.half;
  const double enter2 = foot2 - chord2.half;
  const double leave = std::min(chord1.half, foot2 + chord2.half);
  if (leave <= from || leave <= std::max(enter1, enter2)) return std::nullopt;

  // Which of the discs the start is in already, by standing on its face if not by lying inside.
  bool within1 = enter1 <= from;
  bool within2 = enter2 <= from;
  if (within(one, start, 1.0 + onFace) && within(two, start, 1.0 + onFace)) {
    if (!within(one, start, 1.0 - onFace)) {
      if (chord1.middle <= 0.0) return std::nullopt;
      within1 = true;
    }
    if (!within(two, start, 1.0 - onFace)) {
      if (chord2.middle <= 0.0) return std::nullopt;
      within2 = true;
    }
  }
  if (within1 && within2) return exitCrossing(fakos, start, direction);
  const bool last1 = within2 || (!within1 && enter1 > enter2);
  return last1 ? crossingAt(one, chord1, direction, true)
               : crossingAt(two, chord2, direction, true);
}

Crossing exitCrossing(const Fakos& fakos, Point start, Point direction) {
  const Disc one = disc1(fakos);
  const Disc two = disc2(fakos);
  const Chord chord1 = chordOf(one, start, direction);
  const Chord chord2 = chordOf(two, start, direction);
  return chord1.leave() < chord2.leave() ? crossingAt(one, chord1, direction, false)
                                         : crossingAt(two, chord2, direction, false);
}

void diadromiaktinas(DiadromiApotelesma& result, const Variant& xc1, const Variant& xc2,
                     const Variant& R1, const Variant& R2, const Variant& dx, const Variant& dy,
                     const Variant& px, const Variant& py, const Variant& tag) {
  const Search found = search({xc1.value(), R1.value(), xc2.value(), R2.value()},
                              {px.value(), py.value()}, {dx.value(), dy.value()});
  result = found.result;
  if (found.circlesCross) result.tag = toInteger(tag.value());
  if (found.lineMeetsBoth && workbenchConnected()) workbench().canvas().DrawWidth(1);
}

void diadromiaktinas2(DiadromiApotelesma& result, const Variant& xc1, const Variant& xc2,
                      const Variant& R1, const Variant& R2, const Variant& dx, const Variant& dy,
                      const Variant& px, const Variant& py) {
  result = search({xc1.value(), R1.value(), xc2.value(), R2.value()}, {px.value(), py.value()},
                  {dx.value(), dy.value()})
               .result;
}

}  // namespace lensbench::poreiaaktinon
