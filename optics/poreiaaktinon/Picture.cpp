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
void drawLayer(Canvas& canvas, const Fronts& fronts) {
  drawFronts(canvas, fronts.sent, fronts.step);
}

namespace {

void fit(const light::Edges& edges, Sent& sent) { sent = resent(sent, sent.bench, edges); }

// The fronts of a picture that is a white scene with waves on it and nothing else.
const Fronts* movingFronts(const Shown& shown) {
  if (shown.layers.size() != 2 || !std::holds_alternative<WaveScene>(shown.layers[0])) return {};
  return std::get_if<Fronts>(&shown.layers[1]);
}

}  // namespace

Shown fittedTo(const light::Edges& edges, const Shown& shown) {
  Shown fitted = shown;
  for (Layer& layer : fitted.layers) {
    if (auto* light = std::get_if<Light>(&layer)) fit(edges, light->sent);
    if (auto* fronts = std::get_if<Fronts>(&layer)) fit(edges, fronts->sent);
  }
  return fitted;
}

Shown untraced(Shown shown) {
  for (Layer& layer : shown.layers) {
    if (auto* light = std::get_if<Light>(&layer)) light->sent.paths.reset();
    if (auto* fronts = std::get_if<Fronts>(&layer)) fronts->sent.paths.reset();
  }
  return shown;
}

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
  rubOutFronts(canvas, before->sent, before->step);
  // Rubbing out may have eaten of the scene, which hides behind no front.
  drawAdded(canvas, {}, to.layers);
}

}  // namespace lensbench::poreiaaktinon
