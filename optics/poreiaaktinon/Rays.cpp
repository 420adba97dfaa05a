#include "optics/poreiaaktinon/Rays.h"

#include <cmath>
#include <cstddef>
#include <utility>

#include "canvas/Variant.h"
#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::RayPath;

// Traces rays one after the other through the same bench.
class Tracing {
 public:
  Tracing(const Bench& bench, const light::Edges& edges)
      : lens_(lensOf(bench)), conditions_(conditionsOf(bench, edges)) {}

  std::vector<RayPath> of(const Fan& fan) const {
    const int count = rayCount(fan.vima);
    std::vector<RayPath> paths;
    paths.reserve(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
      const double angle = k * fan.vima * pi / 180.0;
      paths.push_back(trace(fan.source, {std::cos(angle), std::sin(angle)}));
    }
    return paths;
  }

  std::vector<RayPath> of(const Desmi& desmi) const {
    constexpr Point origin{-200.0, 0.0};
    const Point direction{std::cos(desmi.gonia), std::sin(desmi.gonia)};
    const double slope = std::tan(desmi.gonia);
    const double spacing = (400 / Variant(desmi.desmi1)).value();
    std::vector<RayPath> paths;
    paths.reserve(static_cast<std::size_t>(desmi.desmi1) + 1);
    for (int i = 0; i <= desmi.desmi1; ++i) {
      const double k = 200.0 - i * spacing;
      const Point start{origin.x - k * slope, k / direction.x};
      paths.push_back(trace(start, direction, dot(start - origin, direction)));
    }
    return paths;
  }

  std::vector<RayPath> of(const SingleRay& ray) const { return {trace(ray.source, ray.direction)}; }

 private:
  RayPath trace(Point start, Point direction, double phase = 0.0) const {
    return light::trace(lens_, {start, unit(direction)}, conditions_, phase);
  }

  light::Lens lens_;
  light::Conditions conditions_;
};

}  // namespace

int rayCount(double vima) { return static_cast<int>(Int(360 / Variant(vima)).value()); }

Sent send(const Bench& bench, const Rays& rays, const light::Edges& edges) {
  const Tracing tracing(bench, edges);
  auto paths = std::visit([&](const auto& sent) { return tracing.of(sent); }, rays);
  return {bench, rays, edges, std::make_shared<const std::vector<RayPath>>(std::move(paths))};
}

Sent resent(const Sent& sent, const Bench& bench, const light::Edges& edges,
            const std::optional<Sent>& known) {
  const Sent wanted{bench, sent.rays, edges, {}};
  if (sent.paths && sent == wanted) return sent;
  return known == wanted && known->paths ? *known : send(bench, sent.rays, edges);
}

}  // namespace lensbench::poreiaaktinon
