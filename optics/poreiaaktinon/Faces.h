// The two faces of the lens as arcs.
#pragma once

#include <optional>

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Workbench.h"

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

// sxediasitoxou1: draws the right face, an arc of circle 1, on the workbench in black at width 2;
// nothing when there is no lens. (X2, Y2) is the lower end of the upper blade: the blade stands
// before the lens and hides nothing of it.
void sxediasitoxou1(const Variant& xc1, const Variant& R1, const Variant& xc2, const Variant& R2,
                    const Variant& X2, const Variant& Y2);

// sxediasitoxou2: the left face likewise, an arc of circle 2; xroma is its colour as a number with
// red in the lowest byte, 0 for black; below 0 or beyond 32 bits it is Overflow (6).
void sxediasitoxou2(const Variant& xc1, const Variant& R1, const Variant& xc2, const Variant& R2,
                    const Variant& X2, const Variant& Y2, const Variant& xroma);

}  // namespace lensbench::poreiaaktinon
