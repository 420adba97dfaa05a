#include "optics/poreiaaktinon/Scenes.h"

#include <algorithm>
#include <optional>

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Palette.h"

namespace lensbench::poreiaaktinon {
namespace {

void drawFaces(Canvas& canvas, const Fakos& fakos) {
  drawRightFace(canvas, fakos, palette::face);
  drawLeftFace(canvas, fakos, palette::face);
}

void drawFocalCircles(Canvas& canvas, const Glass& glass) {
  if (glass.f.isEmpty()) return;
  for (const double side : {-1.0, 1.0}) {
    canvas.Circle(glass.xordi + side * glass.f.value(), 0.0, palette::markRadius,
                  palette::thinFocus);
  }
}

void drawRimLines(Canvas& canvas, const Glass& glass) {
  if (!glass.exists) return;
  canvas.DrawWidth(palette::rimWidth);
  for (const double y : {glass.h, -glass.h}) {
    canvas.Line(-palette::rimLineEnd, y, palette::rimLineEnd, y, palette::rim);
  }
  canvas.DrawWidth(1);
}

void drawCentres(Canvas& canvas, const Fakos& fakos) {
  canvas.Circle(fakos.xc1, 0.0, palette::markRadius, palette::centre);
  canvas.Circle(fakos.xc2, 0.0, palette::markRadius, palette::centre);
}

void drawFullCircles(Canvas& canvas, const Fakos& fakos) {
  canvas.Circle(fakos.xc1, 0.0, fakos.R1);
  canvas.Circle(fakos.xc2, 0.0, fakos.R2);
}

// Where the fill starts: on the axis inside the glass, 50 units left of the right vertex, or in the
// middle of a lens too thin for that; drawn to the visible part of a lens that reaches beyond the
// drawing area; nothing when no part of its axis is visible.
std::optional<double> fillStart(const Canvas& canvas, const Fakos& fakos) {
  const double from = leftVertex(fakos);
  const double to = rightVertex(fakos);
  const double start = to - from > 100.0 ? to - 50.0 : (from + to) / 2.0;
  const double pixel = canvas.ScaleX(1.0, ScaleUnit::Pixel, ScaleUnit::User);
  const double left = canvas.ScaleLeft() + pixel;
  const double right = canvas.ScaleLeft() + canvas.ScaleWidth() - pixel;
  const double visible = std::clamp(start, std::min(left, right), std::max(left, right));
  if (visible <= from || visible >= to) return {};
  return visible;
}

void fillBody(Canvas& canvas, const Glass& glass) {
  if (!glass.exists) return;
  const auto x = fillStart(canvas, glass.fakos);
  if (!x) return;
  canvas.FillColor(palette::glass);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillBody(
      static_cast<int>(canvas.ScaleX(*x - canvas.ScaleLeft(), ScaleUnit::User, ScaleUnit::Pixel)),
      static_cast<int>(canvas.ScaleY(0.0 - canvas.ScaleTop(), ScaleUnit::User, ScaleUnit::Pixel)),
      palette::face, {faceOutline(glass.fakos), palette::faceWidth});
  canvas.FillStyle(FillStyle::Transparent);
  // The fill runs over every colour but that of the faces, so what it met is drawn again.
  drawCentres(canvas, glass.fakos);
  drawFocalCircles(canvas, glass);
  drawRimLines(canvas, glass);
  drawFullCircles(canvas, glass.fakos);
}

}  // namespace

Glass glassOf(const Fakos& fakos, double n) {
  if (!hasLens(fakos)) return {fakos, false, 0.0, 0.0, {}};
  const SimeiaTomis rim = tomikyklonaxona(fakos.xc1, fakos.xc2, fakos.R1, fakos.R2);
  return {fakos, true, rim.x1, rim.y1, estiakiapostasi(fakos.R1, fakos.R2, n)};
}

void drawLensScene(Canvas& canvas, const LensScene& scene) {
  const Glass glass = glassOf(scene.fakos, scene.n);
  drawFaces(canvas, scene.fakos);
  drawFocalCircles(canvas, glass);
  drawRimLines(canvas, glass);
  drawCentres(canvas, scene.fakos);
  drawFullCircles(canvas, scene.fakos);
  fillBody(canvas, glass);
  drawCardinalPoints(canvas, scene.fakos, scene.n, scene.pigi);
}

void drawWaveScene(Canvas& canvas, const WaveScene& scene) {
  const Glass glass = glassOf(scene.fakos, scene.n);
  canvas.FillColor(palette::glass);
  canvas.FillStyle(FillStyle::Solid);
  drawFocalCircles(canvas, glass);
  canvas.FillStyle(FillStyle::Transparent);
  canvas.DrawStyle(DrawStyle::Dotted);
  drawFullCircles(canvas, scene.fakos);
  canvas.DrawStyle(DrawStyle::Solid);
  drawFaces(canvas, scene.fakos);
}

}  // namespace lensbench::poreiaaktinon
