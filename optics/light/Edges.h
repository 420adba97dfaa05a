// The edges of a drawing area, where rays end that nothing else ends.
#pragma once

#include "canvas/Canvas.h"

namespace lensbench::light {

// User units; lower and upper by value, whichever way y grows on the screen.
struct Edges {
  double left = 0.0;
  double right = 0.0;
  double lower = 0.0;
  double upper = 0.0;

  friend bool operator==(const Edges&, const Edges&) = default;
};
Edges edgesOf(const Canvas& canvas);

}  // namespace lensbench::light
