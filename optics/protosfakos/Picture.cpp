#include "optics/protosfakos/Picture.h"

#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "canvas/Layers.h"
#include "optics/light/Vector.h"
#include "optics/protosfakos/Outline.h"

namespace lensbench::protosfakos {
namespace {

constexpr Rgb beforeLens = RGB(0, 0, 255);
constexpr Rgb normalColour = RGB(255, 0, 0);
constexpr Rgb insideGlass = RGB(0, 255, 255);
constexpr Rgb behindLens = RGB(0, 255, 0);
constexpr Rgb stopped = RGB(255, 0, 255);
constexpr Rgb frontColour = RGB(0, 0, 255);

constexpr double normalLength = 25.0;  // on each side of the face, user units

void drawLine(Canvas& canvas, Point from, Point to, std::optional<Rgb> colour) {
  canvas.Line(from.x, from.y, to.x, to.y, colour);
}

void drawMark(Canvas& canvas, Point p) { canvas.Circle(p.x, p.y, 1.0); }

// Of a stopped ray the dot is drawn even without rays.
void drawStopped(Canvas& canvas, const light::RayPath& path, bool withRay) {
  const Point stop = path.end();
  canvas.DrawWidth(4);
  canvas.PSet(stop.x, stop.y, stopped);
  canvas.DrawWidth(1);
  if (withRay) drawLine(canvas, path.start(), stop, stopped);
}

// The pieces of a ray, and after each that a face ends the normal where it is refracted.
void drawPieces(Canvas& canvas, const light::RayPath& path) {
  const auto way = path.way();
  for (std::size_t i = 0; i < way.size(); ++i) {
    const light::Piece& piece = way[i];
    const bool glass = piece.medium == light::Medium::Glass;
    drawLine(canvas, piece.from, piece.to, glass ? insideGlass : i == 0 ? beforeLens : behindLens);
    if (i + 1 == way.size() || !path.meetings[i].refracts) continue;
    const Point reach = normalLength * path.meetings[i].normal;
    drawLine(canvas, piece.to, piece.to + reach, normalColour);
    drawLine(canvas, piece.to, piece.to - reach, normalColour);
  }
}

void drawRays(Canvas& canvas, const Scene& scene) {
  const bool withRays = !scene.asked.onlyWaves;
  for (const light::RayPath& path : scene.traced->paths) {
    if (path.ending == light::Ending::Diaphragm) {
      drawStopped(canvas, path, withRays);
    } else if (withRays) {
      drawPieces(canvas, path);
    }
  }
}

// The fronts 1..30 through the points of neighbouring rays; without a colour in ForeColor.
void drawFronts(Canvas& canvas, std::span<const Recorded> rays, std::optional<Rgb> colour) {
  for (std::size_t j = 1; j <= lastFront; ++j) {
    for (std::size_t i = 1; i < rays.size(); ++i) {
      drawLine(canvas, rays[i - 1].kymata[j], rays[i].kymata[j], colour);
    }
  }
}

}  // namespace

// Found by the layers that they draw.
void drawLayer(Canvas& canvas, const Scene& scene) { drawOver(canvas, scene); }

void drawLayer(Canvas& canvas, const FrontsAgain& again) { drawFronts(canvas, raysOf(again), {}); }

std::vector<Recorded> raysOf(const FrontsAgain& again) {
  const auto& [asked, traced] = again.scene;
  std::vector<Recorded> rays = traced->recorded;
  if (again.desmiMode) {
    for (std::size_t k = 1; k < rays.size(); ++k) layFronts(rays[k], {}, asked.deiktisSahl);
  }
  return rays;
}

void add(Shown& shown, Layer layer) {
  std::erase(shown.layers, layer);
  shown.layers.push_back(std::move(layer));
}

Scene& sceneIn(Layer& layer) {
  if (auto* again = std::get_if<FrontsAgain>(&layer)) return again->scene;
  return std::get<Scene>(layer);
}

Shown untraced(Shown shown) {
  for (Layer& layer : shown.layers) sceneIn(layer).traced.reset();
  return shown;
}

Shown traced(Shown shown) {
  const Scene* before = nullptr;
  for (Layer& layer : shown.layers) {
    Scene& scene = sceneIn(layer);
    // Fronts again are those of the scene below them.
    if (!scene.traced) scene = before && *before == scene ? *before : sceneOf(scene.asked);
    before = &scene;
  }
  return shown;
}

void drawOver(Canvas& canvas, const Scene& scene) {
  const auto& [asked, traced] = scene;
  drawOutline(canvas, traced->a, traced->b, asked.amfikyrtos);
  if (!asked.onlyWaves) drawIdealBundle(canvas, traced->a, traced->b);
  if (const auto* fan = std::get_if<Fan>(&asked.rays)) drawMark(canvas, fan->source);
  drawMark(canvas, {traced->a, 0.0});
  drawRays(canvas, scene);
  if (!asked.onlyRays) drawFronts(canvas, traced->recorded, frontColour);
}

void draw(Canvas& canvas, const Shown& shown) {
  canvas.Cls();
  drawAdded(canvas, {}, shown.layers);
}

void redraw(Canvas& canvas, const Shown& from, const Shown& to) {
  if (!drawAdded(canvas, from.layers, to.layers)) draw(canvas, to);
}

}  // namespace lensbench::protosfakos
