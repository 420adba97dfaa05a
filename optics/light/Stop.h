// The diaphragm: an opening in a vertical line.
#pragma once

#include <cmath>

#include "canvas/Canvas.h"

namespace lensbench::light {

// The vertical line x = X lets light through from yB to yA, ends included; user units. An opening
// of height 0 or less lets nothing through.
struct Diafragma {
  double X = 0.0;
  double yA = 0.0;  // inner end of the upper blade
  double yB = 0.0;  // inner end of the lower blade

  friend bool operator==(const Diafragma&, const Diafragma&) = default;
};

// Where the line of a ray meets that of the diaphragm. A ray so steep that its slope is no number
// counts as vertical and is taken at its start.
inline double heightAt(const Diafragma& diafragma, Point start, Point direction) {
  const double slope = direction.y / direction.x;
  return std::isfinite(slope) ? start.y + (diafragma.X - start.x) * slope : start.y;
}

// True when the height lies on a blade.
inline bool onBlade(const Diafragma& diafragma, double y) {
  return y > diafragma.yA || y < diafragma.yB;
}

// True when light that reaches the diaphragm at this height goes no further.
inline bool stops(const Diafragma& diafragma, double y) {
  return diafragma.yA <= diafragma.yB || onBlade(diafragma, y);
}

}  // namespace lensbench::light
