// Cutting a segment to a rectangle before it is rastered.
#pragma once

#include <optional>

#include "canvas/Canvas.h"

namespace lensbench {

struct Segment {
  Point from;
  Point to;
};

struct Box {
  double left, top, right, bottom;
};

// A point far outside the image, where a double no longer tells neighbouring pixels apart.
struct FarPoint {
  long double x;
  long double y;
};

// The part of the segment inside the box, by Liang and Barsky; none when it passes the box by. Both
// its ends lie in the box.
std::optional<Segment> clipped(FarPoint from, FarPoint to, const Box& box);

}  // namespace lensbench
