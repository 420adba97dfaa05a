#include "optics/poreiaaktinon/Bundles.h"

#include <cmath>
#include <cstddef>

#include "canvas/Variant.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {

int rayCount(double vima) { return static_cast<int>(Int(360 / Variant(vima)).value()); }

std::vector<RayPath> fanPaths(const OpticalSetup& setup, Point source, double vima) {
  const int count = rayCount(vima);
  std::vector<RayPath> paths;
  paths.reserve(static_cast<std::size_t>(count));
  for (int k = 0; k < count; ++k) {
    const double angle = k * vima * pi / 180.0;
    paths.push_back(tracePath(setup, source, {std::cos(angle), std::sin(angle)}));
  }
  return paths;
}

std::vector<RayPath> bundlePaths(const OpticalSetup& setup, double angle, int desmi1) {
  constexpr Point origin{-200.0, 0.0};
  const Point direction{std::cos(angle), std::sin(angle)};
  const double spacing = (400 / Variant(desmi1)).value();
  std::vector<RayPath> paths;
  paths.reserve(static_cast<std::size_t>(desmi1) + 1);
  for (int i = 0; i <= desmi1; ++i) {
    const double k = 200.0 - i * spacing;
    const Point start{origin.x - k * std::tan(angle), k / direction.x};
    paths.push_back(tracePath(setup, start, direction, dot(start - origin, direction)));
  }
  return paths;
}

}  // namespace lensbench::poreiaaktinon
