// The picture of a lens without light: its outline, the ideal bundle and the marks.
#pragma once

#include "canvas/Canvas.h"
#include "optics/protosfakos/Glass.h"

namespace lensbench::protosfakos {

// Both faces in red, 3 wide. Each curve begins with a stroke along the axis, from the origin to the
// vertex (from (8a, 0) for the mirrored face). DrawWidth is 1 afterwards.
void drawOutline(Canvas& canvas, const Glass& glass);

// Nine rays parallel to the axis inside the glass that meet in the far focus (-c, 0), in ForeColor,
// drawn as if they crossed the right face at normal incidence. Nothing for a lens without height.
void drawIdealBundle(Canvas& canvas, const Glass& glass);

// A circle of radius 1 in ForeColor: the source, the vertex.
void drawMark(Canvas& canvas, Point p);

}  // namespace lensbench::protosfakos
