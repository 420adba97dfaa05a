// Draws the path of a ray: its pieces, the normals where it is refracted, the dot where it stops.
#pragma once

#include "canvas/Canvas.h"
#include "optics/protosfakos/RayPath.h"

namespace lensbench::protosfakos {

// Before the lens blue, normals red, in the glass cyan, behind it green, stopped magenta, all 1
// wide. Of a stopped ray the dot, 4 wide, is drawn even without rays. DrawWidth is 1 afterwards.
void drawPath(Canvas& canvas, const RayPath& path, bool withRays);

}  // namespace lensbench::protosfakos
