// Wavefronts: points of equal optical path on the recorded rays, joined into polylines.
#pragma once

#include <optional>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"

namespace lensbench::protosfakos {

// kymata pigis: waves of the source. Fills kymataX and kymataY of ray k for the fronts 0..30: front
// 0 is the start (pigiX, pigiY), front j is at optical path 4·(j - 1) from it. Index 0 as index of
// refraction is Division by zero (11); k outside 0..500 is Subscript out of range (9). A negative
// index of refraction makes the optical length of the glass negative, which a message tells once
// for a scene.
void kymatapigis(const Variant& k);
// kymata desmis: waves of the bundle. The same with (x, y) as start; Empty counts as 0.
void kymatadesmis(const Variant& x, const Variant& y, const Variant& k);

// The fronts 1..30 through the points of neighbouring rays; without a colour in ForeColor.
void drawFronts(Canvas& canvas, std::optional<Rgb> colour = {});

}  // namespace lensbench::protosfakos
