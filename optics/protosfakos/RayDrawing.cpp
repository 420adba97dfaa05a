#include "optics/protosfakos/RayDrawing.h"

namespace lensbench::protosfakos {
namespace {

constexpr Rgb beforeLens = RGB(0, 0, 255);
constexpr Rgb normalColour = RGB(255, 0, 0);
constexpr Rgb insideGlass = RGB(0, 255, 255);
constexpr Rgb behindLens = RGB(0, 255, 0);
constexpr Rgb stopped = RGB(255, 0, 255);

// Lengths in user units.
constexpr double missLength = 100.0;
constexpr double normalLength = 25.0;  // on each side of the face
constexpr double emergingLength = 530.0;

void drawPiece(Canvas& canvas, Point from, Point to, Rgb colour) {
  canvas.Line(from.x, from.y, to.x, to.y, colour);
}

void drawNormal(Canvas& canvas, Point p, const std::optional<Point>& normal) {
  if (!normal) return;
  drawPiece(canvas, p, p + normalLength * *normal, normalColour);
  drawPiece(canvas, p, p - normalLength * *normal, normalColour);
}

}  // namespace

void drawPath(Canvas& canvas, const RayPath& path, bool withRays) {
  if (path.ending == Ending::Stopped) {
    canvas.DrawWidth(4);
    canvas.PSet(path.stop.x, path.stop.y, stopped);
    canvas.DrawWidth(1);
    if (withRays) drawPiece(canvas, path.incident.start, path.stop, stopped);
    return;
  }
  if (!withRays) return;
  if (path.ending == Ending::Missed) {
    drawPiece(canvas, path.incident.start, path.incident.at(missLength), beforeLens);
    return;
  }
  if (!path.startsInGlass) drawPiece(canvas, path.incident.start, path.entry, beforeLens);
  drawNormal(canvas, path.entry, path.entryNormal);
  drawPiece(canvas, path.entry, path.exit, insideGlass);
  if (path.ending != Ending::Emerged) return;
  drawNormal(canvas, path.exit, path.exitNormal);
  drawPiece(canvas, path.exit, path.exit + emergingLength * path.emerging, behindLens);
}

}  // namespace lensbench::protosfakos
