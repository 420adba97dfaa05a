#include "optics/poreiaaktinon/Tracing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Bundles.h"
#include "optics/poreiaaktinon/Wavefront.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr Rgb airColour = RGB(255, 0, 0);
constexpr Rgb glassColour = RGB(0, 0, 255);
constexpr Rgb stopColour = RGB(255, 0, 255);
constexpr double waveStep = 10.0;  // of optical path, user units

Rgb waveColour(Region region) {
  switch (region) {
    case Region::BeforeLens:
      return RGB(5, 0, 250);
    case Region::Glass:
      return RGB(0, 155, 0);
    case Region::BehindLens:
      break;
  }
  return RGB(150, 0, 150);
}

void drawPieces(Canvas& canvas, const RayPath& path, Rgb air, Rgb glass) {
  canvas.DrawWidth(1);
  for (std::size_t i = 0; i < static_cast<std::size_t>(path.pieces); ++i) {
    const Point from = path.points[i];
    const Point to = path.points[i + 1];
    canvas.Line(from.x, from.y, to.x, to.y, path.regions[i] == Region::Glass ? glass : air);
  }
  if (path.ending != Ending::Diaphragm) return;
  canvas.DrawWidth(4);
  canvas.PSet(path.end().x, path.end().y, stopColour);
  canvas.DrawWidth(1);
}

// The edges moved out by the radius of a dot, so that a dot that shows in part is drawn.
Edges edgesOfDots(const Canvas& canvas) {
  const Edges edges = edgesOf(canvas);
  const double margin = std::fabs(canvas.ScaleX(2.0, ScaleUnit::Pixel, ScaleUnit::User));
  return {edges.left - margin, edges.right + margin, edges.lower - margin, edges.upper + margin};
}

OpticalSetup setupFor(const Canvas& canvas, const Fakos& fakos, const Variant& n) {
  return {fakos, n.value(), workbench().diafragma(), edgesOf(canvas)};
}

Fakos fakosOf(const Variant& xc1, const Variant& xc2, const Variant& R1, const Variant& R2) {
  return {xc1.value(), R1.value(), xc2.value(), R2.value()};
}

}  // namespace

void drawPath(Canvas& canvas, const RayPath& path) {
  drawPieces(canvas, path, airColour, glassColour);
}

void drawWavePoints(Canvas& canvas, const RayPath& path) {
  const Edges edges = edgesOfDots(canvas);
  canvas.DrawWidth(2);
  double pieceStart = path.phase;  // optical path
  double next = std::ceil(pieceStart / waveStep);
  for (int piece = 0; piece < path.pieces; ++piece) {
    const auto i = static_cast<std::size_t>(piece);
    const double optical = opticalLength(path, piece);
    const Point perOpticalPath = (1.0 / indexOf(path, piece)) * path.directions[i];
    const Stretch visible = visibleStretch(edges, path.points[i], perOpticalPath, {0.0, optical});
    const double first = std::max(next, std::ceil((pieceStart + visible.from) / waveStep));
    const double last = std::floor((pieceStart + visible.to) / waveStep);
    // Counted from the first visible one: far from the count's origin, adding 1 to its number
    // would not change it.
    for (double k = 0.0; k <= last - first; k += 1.0) {
      const Point dot = pointOnPiece(path, piece, (first + k) * waveStep - pieceStart);
      canvas.PSet(dot.x, dot.y, waveColour(path.regions[i]));
    }
    pieceStart += optical;
    next = std::floor(pieceStart / waveStep) + 1.0;
  }
  canvas.DrawWidth(1);
}

void drawPaths(Canvas& canvas, std::span<const RayPath> paths, const Provoli& provoli) {
  for (const RayPath& path : paths) {
    if (provoli.rays) drawPath(canvas, path);
    if (provoli.waves) drawWavePoints(canvas, path);
  }
}

void sxediasidesmis(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                    const Variant& dy, const Variant& xc1, const Variant& xc2, const Variant& R1,
                    const Variant& R2, const Variant& n) {
  const OpticalSetup setup = setupFor(canvas, fakosOf(xc1, xc2, R1, R2), n);
  drawPath(canvas, tracePath(setup, {px.value(), py.value()}, {dx.value(), dy.value()}));
}

void sxediasikymaton(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                     const Variant& dy, const Variant& xc1, const Variant& xc2, const Variant& R1,
                     const Variant& R2, const Variant& n, const Variant& phase) {
  const OpticalSetup setup = setupFor(canvas, fakosOf(xc1, xc2, R1, R2), n);
  drawWavePoints(
      canvas, tracePath(setup, {px.value(), py.value()}, {dx.value(), dy.value()}, phase.value()));
}

std::vector<RayPath> bentaliaaktinon(const Variant& xc1, const Variant& xc2, const Variant& R1,
                                     const Variant& R2, const Variant& xs, const Variant& ys) {
  Workbench& bench = workbench();
  OpticalSetup setup = setupOf(bench);
  setup.fakos = fakosOf(xc1, xc2, R1, R2);
  std::vector<RayPath> rays = fanPaths(setup, {xs.value(), ys.value()}, bench.vima());
  drawPaths(bench.canvas(), rays, bench.provoli());
  return rays;
}

void poreiamiasaktinas(Canvas& canvas, const Variant& px, const Variant& py, const Variant& dx,
                       const Variant& dy, const Variant& /*mode*/, const Variant& xc2,
                       const Variant& R1, const Variant& R2, const Variant& n) {
  const OpticalSetup setup = setupFor(canvas, fakosOf(0, xc2, R1, R2), n);
  const RayPath path = tracePath(setup, {px.value(), py.value()}, {dx.value(), dy.value()});
  drawPieces(canvas, path, airColour, airColour);
}

}  // namespace lensbench::poreiaaktinon
