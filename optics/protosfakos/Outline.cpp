#include "optics/protosfakos/Outline.h"

#include <cmath>

#include "optics/protosfakos/Hyperbola.h"

namespace lensbench::protosfakos {
namespace {

constexpr Rgb faceColour = RGB(255, 0, 0);

// Steps of a/50 from the vertex to the rim at 4a.
constexpr int outlineSteps = 150;

void drawFace(Canvas& canvas, double a, double b, bool mirrored) {
  const auto drawnX = [&](double x) { return mirrored ? 8.0 * a - x : x; };
  Point previous;  // Kept on purpose: the outline begins with a stroke from the origin.
  for (int i = 0; i <= outlineSteps; ++i) {
    const double x = a + i * a / 50.0;
    const Point next{x, b * std::sqrt((x / a) * (x / a) - 1.0)};
    canvas.Line(drawnX(next.x), next.y, drawnX(previous.x), previous.y, faceColour);
    canvas.Line(drawnX(next.x), -next.y, drawnX(previous.x), -previous.y, faceColour);
    previous = next;
  }
}

}  // namespace

void drawOutline(Canvas& canvas, double a, double b, bool amfikyrtos) {
  canvas.DrawWidth(3);
  drawFace(canvas, a, b, false);
  if (amfikyrtos) {
    drawFace(canvas, a, b, true);
  } else {
    const double rim = rimHalfHeight(b);
    canvas.Line(4.0 * a, rim, 4.0 * a, -rim, faceColour);
  }
  canvas.DrawWidth(1);
}

void drawIdealBundle(Canvas& canvas, double a, double b) {
  if (b == 0.0) return;
  const double c = std::hypot(a, b);
  const double spacing = rimHalfHeight(b) / 5.0;
  for (int k = -4; k <= 4; ++k) {
    const double y = k * spacing;
    const double x = a * std::hypot(1.0, y / b);
    canvas.Line(10.0 * a, y, x, y);
    canvas.Line(x, y, -c, 0.0);
  }
}

}  // namespace lensbench::protosfakos
