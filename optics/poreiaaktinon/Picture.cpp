#include "optics/poreiaaktinon/Picture.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/poreiaaktinon/Scenes.h"

namespace lensbench::poreiaaktinon {
namespace {

bool same(Point a, Point b) { return a.x == b.x && a.y == b.y; }

bool same(const LensScene& a, const LensScene& b) {
  return a.fakos == b.fakos && a.n == b.n && same(a.pigi, b.pigi);
}
bool same(const CardinalMarks& a, const CardinalMarks& b) {
  return a.fakos == b.fakos && a.n == b.n && same(a.pigi, b.pigi);
}
bool same(const Light& a, const Light& b) { return a.sent == b.sent && a.provoli == b.provoli; }
bool same(const WaveScene& a, const WaveScene& b) { return a.fakos == b.fakos && a.n == b.n; }
bool same(const Fronts& a, const Fronts& b) { return a.sent == b.sent && a.step == b.step; }

void drawLayer(Canvas& canvas, const LensScene& scene) { drawLensScene(canvas, scene); }
void drawLayer(Canvas& canvas, const CardinalMarks& marks) {
  drawCardinalPoints(canvas, marks.fakos, marks.n, marks.pigi);
}
void drawLayer(Canvas& canvas, const Light& light) { drawLight(canvas, light); }
void drawLayer(Canvas& canvas, const WaveScene& scene) { drawWaveScene(canvas, scene); }
void drawLayer(Canvas& canvas, const Fronts& fronts) {
  drawFronts(canvas, fronts.sent, fronts.step);
}

void drawLayers(Canvas& canvas, const std::vector<Layer>& layers, std::size_t from) {
  for (std::size_t i = from; i < layers.size(); ++i) {
    std::visit([&](const auto& layer) { drawLayer(canvas, layer); }, layers[i]);
  }
}

void fit(const light::Edges& edges, Sent& sent) { sent = resent(sent, sent.bench, edges); }

bool startsWith(const std::vector<Layer>& whole, const std::vector<Layer>& start) {
  return start.size() <= whole.size() && std::equal(start.begin(), start.end(), whole.begin());
}

// The fronts of a picture that is a white scene with waves on it and nothing else.
const Fronts* movingFronts(const Shown& shown) {
  if (shown.layers.size() != 2 || !std::holds_alternative<WaveScene>(shown.layers[0])) return {};
  return std::get_if<Fronts>(&shown.layers[1]);
}

}  // namespace

bool operator==(const Layer& a, const Layer& b) {
  if (a.index() != b.index()) return false;
  return std::visit(
      [&](const auto& layer) {
        return same(layer, *std::get_if<std::decay_t<decltype(layer)>>(&b));
      },
      a);
}

Shown fittedTo(const light::Edges& edges, const Shown& shown) {
  Shown fitted = shown;
  for (Layer& layer : fitted.layers) {
    if (auto* light = std::get_if<Light>(&layer)) fit(edges, light->sent);
    if (auto* fronts = std::get_if<Fronts>(&layer)) fit(edges, fronts->sent);
  }
  return fitted;
}

void draw(Canvas& canvas, const Shown& shown) {
  canvas.Cls();
  drawLayers(canvas, shown.layers, 0);
}

void redraw(Canvas& canvas, const Shown& from, const Shown& to) {
  if (startsWith(to.layers, from.layers)) {
    drawLayers(canvas, to.layers, from.layers.size());
    return;
  }
  const Fronts* before = movingFronts(from);
  const Fronts* now = movingFronts(to);
  if (before == nullptr || now == nullptr || !(from.layers[0] == to.layers[0])) {
    draw(canvas, to);
    return;
  }
  rubOutFronts(canvas, before->sent, before->step);
  // Rubbing out may have eaten of the scene, which hides behind no front.
  drawLayers(canvas, to.layers, 0);
}

}  // namespace lensbench::poreiaaktinon
