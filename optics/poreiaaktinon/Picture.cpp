#include "optics/poreiaaktinon/Picture.h"

#include "canvas/Layers.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/poreiaaktinon/Scenes.h"

namespace lensbench::poreiaaktinon {

// Found by the layers that they draw.
void drawLayer(Canvas& canvas, const LensScene& scene) { drawLensScene(canvas, scene); }
void drawLayer(Canvas& canvas, const CardinalMarks& marks) {
  drawCardinalPoints(canvas, marks.fakos, marks.n, marks.pigi);
}
void drawLayer(Canvas& canvas, const Light& light) { drawLight(canvas, light); }
void drawLayer(Canvas& canvas, const WaveScene& scene) { drawWaveScene(canvas, scene); }
void drawLayer(Canvas& canvas, const Fronts& fronts) { drawFronts(canvas, fronts); }

namespace {

// The fronts of a picture that is a white scene with waves on it and nothing else.
const Fronts* movingFronts(const Shown& shown) {
  if (shown.layers.size() != 2 || !std::holds_alternative<WaveScene>(shown.layers[0])) return {};
  return std::get_if<Fronts>(&shown.layers[1]);
}

}  // namespace

void draw(Canvas& canvas, const Shown& shown) {
  canvas.Cls();
  drawAdded(canvas, {}, shown.layers);
}

void redraw(Canvas& canvas, const Shown& from, const Shown& to) {
  if (drawAdded(canvas, from.layers, to.layers)) return;
  const Fronts* before = movingFronts(from);
  const Fronts* now = movingFronts(to);
  if (before == nullptr || now == nullptr || from.layers[0] != to.layers[0]) {
    return draw(canvas, to);
  }
  drawFronts(canvas, *before, white, white);
  // Rubbing out may have eaten of the scene, which hides behind no front.
  drawAdded(canvas, {}, to.layers);
}

}  // namespace lensbench::poreiaaktinon
