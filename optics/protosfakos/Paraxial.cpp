#include "optics/protosfakos/Paraxial.h"

#include <cmath>

#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/Lens.h"

namespace lensbench::protosfakos {

std::optional<Image> paraxialImage(const Asked& asked, Point source) {
  const auto axes = deriveLens(asked.deiktisSahl);
  if (!axes || axes->b == 0.0) return std::nullopt;
  const double n = asked.deiktisSahl;
  const double left = axes->a;
  const double right = asked.amfikyrtos ? 7.0 * axes->a : rimX(axes->a);
  if (source.x >= left && source.x <= right) return std::nullopt;

  const bool leftwards = source.x > right;
  // A hyperbola is as curved at its vertex as a circle of radius b²/a.
  const double curvedFace = (n - 1.0) * axes->a / (axes->b * axes->b);
  const double leftFace = curvedFace;
  const double rightFace = asked.amfikyrtos ? curvedFace : 0.0;
  const double first = leftwards ? rightFace : leftFace;
  const double second = leftwards ? leftFace : rightFace;

  // The matrix of the lens from vertex to vertex, on heights and angles.
  const double thickness = (right - left) / n;
  const double A = 1.0 - thickness * first;
  const double B = thickness;
  const double C = -first - second * A;
  const double D = 1.0 - thickness * second;
  const double before = leftwards ? source.x - right : left - source.x;
  const double spread = C * before + D;
  // So little that what is left of it is the rounding of numbers.
  if (std::fabs(spread) < 1e-9) return std::nullopt;
  const double behind = -(A * before + B) / spread;
  const double x = leftwards ? left - behind : right + behind;
  return Image{{x, source.y * (A + behind * C)}, behind >= 0.0};
}

}  // namespace lensbench::protosfakos
