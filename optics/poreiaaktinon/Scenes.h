// The still scenes of the workbench: the lens with everything that explains it, and the white scene
// under moving waves.
#pragma once

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Picture.h"

namespace lensbench::poreiaaktinon {

// What both scenes draw of a lens, user units.
struct Glass {
  Fakos fakos;
  bool exists = false;  // the circles cross and no radius is 0: there is a lens body
  double xordi = 0.0;   // abscissa of the common chord
  double h = 0.0;       // half-height of the lens, from the axis to the rim
  Variant f;            // lensmaker focal length; Empty without a lens or where it is infinite
};
Glass glassOf(const Fakos& fakos, double n);

// Neither clears anything; both leave DrawWidth at 1, a solid pen and no fill.
//
// Faces, focal circles, rim lines, centres, full circles, the filled body and the cardinal points,
// in this order.
void drawLensScene(Canvas& canvas, const LensScene& scene);
// Focal circles, dotted circles and faces. Drawn again it mends what rubbing out a wave has eaten.
void drawWaveScene(Canvas& canvas, const WaveScene& scene);

}  // namespace lensbench::poreiaaktinon
