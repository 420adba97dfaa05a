#include "optics/poreiaaktinon/Faces.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "optics/poreiaaktinon/Intersection.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "optics/poreiaaktinon/SurfaceSearch.h"

namespace lensbench::poreiaaktinon {
namespace {

void drawArc(double centre, double radius, double start, double end, Rgb colour) {
  Canvas& canvas = workbench().canvas();
  canvas.DrawWidth(2);
  canvas.Circle(centre, 0.0, radius, colour, start, end);
  canvas.DrawWidth(1);
}

Rgb colourOf(const Variant& xroma) {
  constexpr double largest = std::numeric_limits<std::uint32_t>::max();
  if (xroma < 0 || xroma > largest) throwOverflow();
  return {static_cast<std::uint32_t>(xroma.value())};
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

void sxediasitoxou1(const Variant& xc1, const Variant& R1, const Variant& xc2, const Variant& R2,
                    const Variant& /*X2*/, const Variant& /*Y2*/) {
  const auto arcs = faceArcs({xc1.value(), R1.value(), xc2.value(), R2.value()});
  if (arcs) drawArc(xc1.value(), R1.value(), arcs->rightStart, arcs->rightEnd, black);
}

void sxediasitoxou2(const Variant& xc1, const Variant& R1, const Variant& xc2, const Variant& R2,
                    const Variant& /*X2*/, const Variant& /*Y2*/, const Variant& xroma) {
  const auto arcs = faceArcs({xc1.value(), R1.value(), xc2.value(), R2.value()});
  if (!arcs) return;
  drawArc(xc2.value(), R2.value(), arcs->leftStart, arcs->leftEnd, colourOf(xroma));
}

}  // namespace lensbench::poreiaaktinon
