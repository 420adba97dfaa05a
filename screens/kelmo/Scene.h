// The still pictures of the workbench: the lens with everything that explains it, and the white
// scene under the waves in time.
#pragma once

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench {

// What both pictures are drawn from, read of the workbench once.
struct LensScene {
  poreiaaktinon::Fakos fakos;
  bool exists = false;  // the circles cross and no radius is 0: there is a lens body
  double xordi = 0.0;   // abscissa of the common chord
  double h = 0.0;       // half-height of the lens, from the axis to the rim
  Variant f;            // lensmaker focal length; Empty without a lens or where it is infinite
  Point bladeEnd;       // lower end of the upper blade
};
LensScene lensScene(const poreiaaktinon::Workbench& workbench);
// The same with another index of refraction.
LensScene lensScene(const poreiaaktinon::Workbench& workbench, double n);

// Faces, focal circles, rim lines, centres, full circles, the filled body and the cardinal points,
// in this order. Clears nothing; leaves DrawWidth at 1, a solid pen and no fill.
void drawLensScene(poreiaaktinon::Workbench& workbench);

// The cardinal points with the construction of the image, or without it where the construction has
// no answer (source on the axis, or straight above F1 or N1); nothing where the lens has none.
void drawCardinalPoints(poreiaaktinon::Workbench& workbench);

// Clears, and draws what stands under moving waves: focal circles, dotted circles and faces.
void drawWaveScene(poreiaaktinon::Workbench& workbench);

// Rubs out in white what moves in that scene when the index of refraction changes.
void rubOutFocalCircles(Canvas& canvas, const LensScene& scene);

// What rubbing out a wave may have eaten of that scene, drawn once more.
void redrawWaveScene(Canvas& canvas, const LensScene& scene);

}  // namespace lensbench
