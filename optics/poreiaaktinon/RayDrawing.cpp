#include "optics/poreiaaktinon/RayDrawing.h"

#include <algorithm>
#include <cmath>

#include "optics/light/Edges.h"
#include "optics/light/OpticalPath.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Fronts.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::Medium;
using light::Piece;
using light::RayPath;

Rgb waveColour(const RayPath& path, const Piece& piece) {
  if (piece.medium == Medium::Glass) return palette::waveInGlass;
  return &piece == &path.pieces[0] ? palette::waveBeforeLens : palette::waveBehindLens;
}

void drawFront(Canvas& canvas, const Front& front, Rgb colour) {
  canvas.DrawWidth(palette::frontPieceWidth);
  for (const Front::Piece& piece : front.pieces) {
    canvas.Line(piece.from.x, piece.from.y, piece.to.x, piece.to.y, colour);
  }
  canvas.DrawWidth(palette::frontPointWidth);
  for (const Point& point : front.points) canvas.PSet(point.x, point.y, colour);
  canvas.DrawWidth(1);
}

}  // namespace

void drawPath(Canvas& canvas, const RayPath& path, Rgb air, Rgb glass) {
  canvas.DrawWidth(1);
  for (const Piece& piece : path.way()) {
    canvas.Line(piece.from.x, piece.from.y, piece.to.x, piece.to.y,
                piece.medium == Medium::Glass ? glass : air);
  }
  if (path.ending != light::Ending::Diaphragm) return;
  canvas.DrawWidth(palette::stopWidth);
  canvas.PSet(path.end().x, path.end().y, palette::stop);
  canvas.DrawWidth(1);
}

void drawWavePoints(Canvas& canvas, const RayPath& path) {
  // A dot whose middle is out of sight by its radius shows in part.
  const double margin = std::fabs(canvas.ScaleX(2.0, ScaleUnit::Pixel, ScaleUnit::User));
  const light::Edges edges = light::movedOut(light::edgesOf(canvas), margin);
  canvas.DrawWidth(palette::waveWidth);
  double pieceStart = path.phase;  // optical path
  double next = std::ceil(pieceStart / waveStep);
  for (const Piece& piece : path.way()) {
    const double optical = light::opticalLength(path, piece);
    const Point perOpticalPath = (1.0 / light::indexOf(path, piece)) * piece.direction;
    const light::Stretch visible =
        light::visibleStretch(edges, piece.from, perOpticalPath, {0.0, optical});
    const double first = std::max(next, std::ceil((pieceStart + visible.from) / waveStep));
    const double last = std::floor((pieceStart + visible.to) / waveStep);
    const Rgb colour = waveColour(path, piece);
    // Counted from the first visible one: far from the count's origin, adding 1 to its number
    // would not change it.
    for (double k = 0.0; k <= last - first; k += 1.0) {
      const Point dot = light::pointOnPiece(path, piece, (first + k) * waveStep - pieceStart);
      canvas.PSet(dot.x, dot.y, colour);
    }
    pieceStart += optical;
    next = std::floor(pieceStart / waveStep) + 1.0;
  }
  canvas.DrawWidth(1);
}

void drawLight(Canvas& canvas, const Light& light) {
  for (const RayPath& path : *light.sent.paths) {
    if (light.provoli.rays) drawPath(canvas, path);
    if (light.provoli.waves) drawWavePoints(canvas, path);
  }
}

void drawFronts(Canvas& canvas, const Fronts& fronts, Rgb first, Rgb second) {
  const auto& [sent, step] = fronts;
  drawFront(canvas, frontAt(sent, pathPerStep * step), first);
  if (step <= stepsBehind) return;
  drawFront(canvas, frontAt(sent, pathPerStep * (step - stepsBehind)), second);
}

}  // namespace lensbench::poreiaaktinon
