#include "optics/protosfakos/Outline.h"

#include <cmath>
#include <variant>

#include "optics/protosfakos/Hyperbola.h"

namespace lensbench::protosfakos {
namespace {

constexpr Rgb faceColour = RGB(255, 0, 0);

// Steps of a/50 from the vertex to the rim at 4a.
constexpr int outlineSteps = 150;

void drawFace(Canvas& canvas, const HyperbolicFace& face) {
  const double a = face.a;
  const auto drawnX = [&](double x) { return face.mirrored ? 8.0 * a - x : x; };
  Point previous;
  for (int i = 0; i <= outlineSteps; ++i) {
    const double x = a + i * a / 50.0;
    const Point next{x, face.b * std::sqrt((x / a) * (x / a) - 1.0)};
    canvas.Line(drawnX(next.x), next.y, drawnX(previous.x), previous.y, faceColour);
    canvas.Line(drawnX(next.x), -next.y, drawnX(previous.x), -previous.y, faceColour);
    previous = next;
  }
}

}  // namespace

void drawOutline(Canvas& canvas, const Glass& glass) {
  canvas.DrawWidth(3);
  for (const Face& face : glass.faces) {
    if (const auto* hyperbola = std::get_if<HyperbolicFace>(&face)) {
      drawFace(canvas, *hyperbola);
    } else {
      const double rim = rimHalfHeight(glass.b);
      canvas.Line(glass.rimX(), rim, glass.rimX(), -rim, faceColour);
    }
  }
  canvas.DrawWidth(1);
}

void drawIdealBundle(Canvas& canvas, const Glass& glass) {
  const double a = glass.a;
  const double b = glass.b;
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

void drawMark(Canvas& canvas, Point p) { canvas.Circle(p.x, p.y, 1.0); }

}  // namespace lensbench::protosfakos
