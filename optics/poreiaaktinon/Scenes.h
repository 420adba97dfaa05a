// The still scenes of the workbench: the lens with everything that explains it, and the white scene
// under moving waves.
#pragma once

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench::poreiaaktinon {

// Neither clears anything; both leave DrawWidth at 1, a solid pen and no fill.
//
// Faces, focal circles, rim lines, centres, full circles, the filled body and the cardinal points,
// in this order.
void drawLensScene(Canvas& canvas, const LensScene& scene);
// Focal circles, dotted circles and faces. Drawn again it mends what rubbing out a wave has eaten.
void drawWaveScene(Canvas& canvas, const WaveScene& scene);

}  // namespace lensbench::poreiaaktinon
