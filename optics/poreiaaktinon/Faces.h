// The two faces of the lens as arcs.
#pragma once

#include <optional>
#include <vector>

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Bench.h"

namespace lensbench::poreiaaktinon {

// Start and end angles of both faces about the centres of their circles, 0 to 2 pi, drawn
// counter-clockwise. A face may be more than half a circle, up to a whole one.
struct FaceArcs {
  double rightStart = 0.0;  // circle 1; later than its end, so that the arc runs through 0
  double rightEnd = 0.0;
  double leftStart = 0.0;  // circle 2
  double leftEnd = 0.0;
};
// Nothing when there is no lens.
std::optional<FaceArcs> faceArcs(const Fakos& fakos);

// A face at width 2, an arc of its circle; nothing when there is no lens.
void drawRightFace(Canvas& canvas, const Fakos& fakos, Rgb colour);
void drawLeftFace(Canvas& canvas, const Fakos& fakos, Rgb colour);

// Both faces, the left one first, as one outline of the glass; empty when there is no lens.
std::vector<CircleArc> faceOutline(const Fakos& fakos);

}  // namespace lensbench::poreiaaktinon
