// The picture of a lens without light: its outline and the ideal bundle.
#pragma once

#include "canvas/Canvas.h"

namespace lensbench::protosfakos {

// Both faces in red, 3 wide. Each curve begins with a stroke along the axis, from the origin to the
// vertex (from (8a, 0) for the mirrored face). a and b are the semi-axes of the hyperbola, user
// units. DrawWidth is 1 afterwards.
void drawOutline(Canvas& canvas, double a, double b, bool amfikyrtos);

// Nine rays parallel to the axis inside the glass that meet in the far focus (-c, 0), in ForeColor,
// drawn as if they crossed the right face at normal incidence. Nothing for a lens without height.
void drawIdealBundle(Canvas& canvas, double a, double b);

}  // namespace lensbench::protosfakos
