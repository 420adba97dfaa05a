#include "optics/poreiaaktinon/Faces.h"

#include <cmath>

#include "optics/poreiaaktinon/Geometry.h"
#include "optics/poreiaaktinon/Palette.h"

namespace lensbench::poreiaaktinon {
namespace {

void drawArc(Canvas& canvas, double centre, double radius, Rgb colour, double start, double end) {
  canvas.DrawWidth(palette::faceWidth);
  canvas.Circle(centre, 0.0, radius, colour, start, end);
  canvas.DrawWidth(1);
}

}  // namespace

std::optional<FaceArcs> faceArcs(const Fakos& fakos) {
  if (!hasLens(fakos)) return std::nullopt;
  const SimeiaTomis rim = tomikyklonaxona(fakos.xc1, fakos.xc2, fakos.R1, fakos.R2);
  const double right = std::atan2(rim.y1, rim.x1 - fakos.xc1);
  const double left = std::atan2(rim.y1, fakos.xc2 - rim.x1);
  // Angle 0 lies within the right face; a face that is a whole circle starts and ends there.
  const bool whole = right == pi;
  return FaceArcs{whole ? 0.0 : 2.0 * pi - right, whole ? 2.0 * pi : right, pi - left, pi + left};
}

void drawRightFace(Canvas& canvas, const Fakos& fakos, Rgb colour) {
  const auto arcs = faceArcs(fakos);
  if (arcs) drawArc(canvas, fakos.xc1, fakos.R1, colour, arcs->rightStart, arcs->rightEnd);
}

void drawLeftFace(Canvas& canvas, const Fakos& fakos, Rgb colour) {
  const auto arcs = faceArcs(fakos);
  if (arcs) drawArc(canvas, fakos.xc2, fakos.R2, colour, arcs->leftStart, arcs->leftEnd);
}

std::vector<CircleArc> faceOutline(const Fakos& fakos) {
  const auto arcs = faceArcs(fakos);
  if (!arcs) return {};
  const double rightStart = arcs->rightStart - (arcs->rightStart > arcs->rightEnd ? 2.0 * pi : 0.0);
  return {{{fakos.xc2, 0.0}, fakos.R2, arcs->leftStart, arcs->leftEnd},
          {{fakos.xc1, 0.0}, fakos.R1, rightStart, arcs->rightEnd}};
}

}  // namespace lensbench::poreiaaktinon
