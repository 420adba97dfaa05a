// Refraction at a surface.
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>

#include "optics/light/Vector.h"

namespace lensbench::light {

// What a ray does whose angle behind the surface is a right angle exactly: goes on along the
// tangent, or is reflected like all rays beyond it.
enum class Grazing : std::uint8_t { AlongTangent, Reflected };

// Snell's law. direction and normal are of unit length, the normal on either side; ratio is the
// index on this side over that on the far side. The ray keeps its side of the normal and its sense
// of travel. Returns a unit direction, nothing at total reflection.
inline std::optional<Point> refracted(Point direction, Point normal, double ratio,
                                      Grazing grazing) {
  const Point tangent = turned(normal);
  const double sine = ratio * dot(direction, tangent);
  const double size = std::fabs(sine);
  if (size > 1.0 || (size == 1.0 && grazing == Grazing::Reflected)) return std::nullopt;
  const double cosine =
      std::copysign(std::sqrt((1.0 - sine) * (1.0 + sine)), dot(direction, normal));
  return sine * tangent + cosine * normal;
}

}  // namespace lensbench::light
