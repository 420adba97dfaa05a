#include "screens/kelmo/Scene.h"

#include <algorithm>
#include <optional>

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Faces.h"
#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Intersection.h"
#include "optics/poreiaaktinon/SurfaceSearch.h"

namespace lensbench {
namespace {

using poreiaaktinon::Fakos;

constexpr Rgb focalColour = RGB(55, 0, 0);
constexpr Rgb centreColour = RGB(5, 0, 0);
constexpr Rgb rimColour = RGB(0, 255, 0);
constexpr Rgb glassColour = RGB(220, 220, 195);
constexpr double markRadius = 3.0;

void drawFaces(const LensScene& scene) {
  const Fakos& lens = scene.fakos;
  poreiaaktinon::sxediasitoxou1(lens.xc1, lens.R1, lens.xc2, lens.R2, scene.bladeEnd.x,
                                scene.bladeEnd.y);
  poreiaaktinon::sxediasitoxou2(lens.xc1, lens.R1, lens.xc2, lens.R2, scene.bladeEnd.x,
                                scene.bladeEnd.y, 0);
}

void drawFocalCircles(Canvas& canvas, const LensScene& scene, Rgb colour = focalColour) {
  if (scene.f.isEmpty()) return;
  for (const double side : {-1.0, 1.0}) {
    canvas.Circle(scene.xordi + side * scene.f.value(), 0.0, markRadius, colour);
  }
}

void drawRimLines(Canvas& canvas, const LensScene& scene) {
  if (!scene.exists) return;
  canvas.DrawWidth(2);
  for (const double y : {scene.h, -scene.h}) canvas.Line(-200.0, y, 200.0, y, rimColour);
  canvas.DrawWidth(1);
}

void drawCentres(Canvas& canvas, const Fakos& lens) {
  canvas.Circle(lens.xc1, 0.0, markRadius, centreColour);
  canvas.Circle(lens.xc2, 0.0, markRadius, centreColour);
}

void drawFullCircles(Canvas& canvas, const Fakos& lens) {
  canvas.Circle(lens.xc1, 0.0, lens.R1);
  canvas.Circle(lens.xc2, 0.0, lens.R2);
}

// Where the fill starts: on the axis inside the glass, 50 units left of the right vertex, or in the
// middle of a lens too thin for that; drawn to the visible part of a lens that reaches beyond the
// drawing area; nothing when no part of its axis is visible.
std::optional<double> fillStart(const Canvas& canvas, const Fakos& lens) {
  const double leftVertex = std::max(lens.xc2 - lens.R2, lens.xc1 - lens.R1);
  const double rightVertex = std::min(lens.xc1 + lens.R1, lens.xc2 + lens.R2);
  const double start =
      rightVertex - leftVertex > 100.0 ? rightVertex - 50.0 : (leftVertex + rightVertex) / 2.0;
  const double pixel = canvas.ScaleX(1.0, ScaleUnit::Pixel, ScaleUnit::User);
  const double left = canvas.ScaleLeft() + pixel;
  const double right = canvas.ScaleLeft() + canvas.ScaleWidth() - pixel;
  const double visible = std::clamp(start, std::min(left, right), std::max(left, right));
  if (visible <= leftVertex || visible >= rightVertex) return {};
  return visible;
}

void fillBody(Canvas& canvas, const LensScene& scene) {
  canvas.FillColor(glassColour);
  if (!scene.exists) return;
  const auto x = fillStart(canvas, scene.fakos);
  if (!x) return;
  canvas.FillStyle(FillStyle::Solid);
  canvas.FloodFill(
      static_cast<int>(canvas.ScaleX(*x - canvas.ScaleLeft(), ScaleUnit::User, ScaleUnit::Pixel)),
      static_cast<int>(canvas.ScaleY(0.0 - canvas.ScaleTop(), ScaleUnit::User, ScaleUnit::Pixel)),
      black);
  canvas.FillStyle(FillStyle::Transparent);
  // The fill runs over every colour but black, so what it met is drawn again.
  drawCentres(canvas, scene.fakos);
  drawFocalCircles(canvas, scene);
  drawRimLines(canvas, scene);
  drawFullCircles(canvas, scene.fakos);
}

}  // namespace

LensScene lensScene(const poreiaaktinon::Workbench& workbench) {
  return lensScene(workbench, workbench.deiktisdiathlasis());
}

LensScene lensScene(const poreiaaktinon::Workbench& workbench, double n) {
  LensScene scene;
  scene.fakos = workbench.fakos();
  const Fakos& lens = scene.fakos;
  const auto diafragma = workbench.diafragma();
  scene.bladeEnd = {diafragma.X, diafragma.yA};
  if (!poreiaaktinon::hasLens(lens)) return scene;
  const auto rim = poreiaaktinon::tomikyklonaxona(lens.xc1, lens.xc2, lens.R1, lens.R2);
  scene.exists = true;
  scene.xordi = rim.x1;
  scene.h = rim.y1;
  scene.f = poreiaaktinon::estiakiapostasi(lens.R1, lens.R2, n);
  return scene;
}

void drawLensScene(poreiaaktinon::Workbench& workbench) {
  Canvas& canvas = workbench.canvas();
  const LensScene scene = lensScene(workbench);
  drawFaces(scene);
  canvas.DrawWidth(1);
  drawFocalCircles(canvas, scene);
  drawRimLines(canvas, scene);
  drawCentres(canvas, scene.fakos);
  canvas.FontName("Arial");
  drawFullCircles(canvas, scene.fakos);
  fillBody(canvas, scene);
  drawCardinalPoints(workbench);
  canvas.DrawWidth(1);
}

void drawCardinalPoints(poreiaaktinon::Workbench& workbench) {
  const double n = workbench.deiktisdiathlasis();
  if (!poreiaaktinon::hasCardinalPoints(workbench.fakos(), n)) return;
  const auto points = poreiaaktinon::cardinalPoints(workbench.fakos(), n);
  if (poreiaaktinon::canConstruct(points, workbench.pigi())) {
    poreiaaktinon::xaraktiristikasimeia();
  } else {
    poreiaaktinon::drawCardinalMarks(workbench.canvas(), points);
    poreiaaktinon::drawCardinalLabels(workbench.canvas(), points);
  }
}

void drawWaveScene(poreiaaktinon::Workbench& workbench) {
  workbench.canvas().Cls();
  redrawWaveScene(workbench.canvas(), lensScene(workbench));
}

void rubOutFocalCircles(Canvas& canvas, const LensScene& scene) {
  const Rgb fill = canvas.FillColor();
  canvas.DrawWidth(1);
  canvas.FillStyle(FillStyle::Solid);
  canvas.FillColor(white);
  drawFocalCircles(canvas, scene, white);
  canvas.FillColor(fill);
  canvas.FillStyle(FillStyle::Transparent);
}

void redrawWaveScene(Canvas& canvas, const LensScene& scene) {
  canvas.DrawWidth(1);
  canvas.FillStyle(FillStyle::Solid);
  drawFocalCircles(canvas, scene);
  canvas.FillStyle(FillStyle::Transparent);
  canvas.DrawStyle(DrawStyle::Dotted);
  drawFullCircles(canvas, scene.fakos);
  canvas.DrawStyle(DrawStyle::Solid);
  drawFaces(scene);
  canvas.DrawWidth(1);
}

}  // namespace lensbench
