// What stands on the picture of the workbench, once more with other values.
#pragma once

#include <optional>

#include "optics/poreiaaktinon/Picture.h"

namespace lensbench::poreiaaktinon {

// A picture, and the rays that carry its moving waves.
struct Standing {
  Shown shown;
  std::optional<Sent> set;

  friend bool operator==(const Standing&, const Standing&) = default;
};

// All that a picture can be drawn with.
struct Values {
  Bench bench;
  Point pigi;         // light source, user units
  double vima = 1.0;  // step between the rays of a fan, degrees
  int desmi1 = 1;     // number of spaces between the rays of a bundle
  Provoli provoli;
  light::Edges edges;  // where rays end
};

// Whether anything stands there but the lens scene.
bool showsMoreThanLens(const Shown& shown);

// The same layers with these values: fans from the source, bundles at their angles, fronts at their
// step. A fan of more rays than may carry moving waves leaves no set, and waves that move keep the
// number of rays that they have. What does not change is not traced again, and nothing twice.
Standing repeated(const Standing& standing, const Values& now);

// The same picture on a drawing area with these edges.
Standing fittedTo(const light::Edges& edges, const Standing& standing);
// The same without the traced paths; fittedTo traces them again.
Standing untraced(Standing standing);

}  // namespace lensbench::poreiaaktinon
