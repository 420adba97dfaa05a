#include "optics/protosfakos/Scene.h"

#include <cstddef>
#include <utility>

#include "optics/light/Vector.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/Lens.h"

namespace lensbench::protosfakos {
namespace {

constexpr double bundleX = 130.0;  // where the rays of a bundle start, user units
constexpr double bundleTop = 100.0;

// Traces ray after ray of a scene.
struct Caster {
  light::Lens lens;
  Diafragma diafragma;
  Traced traced;

  void cast(const light::Ray& ray, double phase) {
    const light::RayPath& path = traced.paths.emplace_back(trace(lens, ray, diafragma, phase));
    if (!emerged(path)) return;
    Recorded& recorded = traced.recorded.emplace_back(record(path));
    layFronts(recorded, ray.start - phase * ray.direction, lens.n);
    traced.arnhtiko = traced.arnhtiko || arnhtiko(recorded, lens.n);
  }

  void expect(std::size_t rays) {
    traced.paths.reserve(rays);
    traced.recorded.reserve(rays);
  }

  void cast(const Fan& fan) {
    expect(61);
    const Travel travel = fan.source.x < traced.a ? Travel::Right : Travel::Left;
    // Slopes 0.9, 0.87 .. -0.9, from whole hundredths so that the middle one is exactly 0.
    for (int hundredths = 90; hundredths >= -90; hundredths -= 3) {
      cast(rayWithSlope(fan.source, hundredths / 100.0, travel), 0.0);
    }
  }

  void cast(const Desmi& desmi, int rays) {
    expect(static_cast<std::size_t>(rays));
    for (int i = 0; i < rays; ++i) {
      const double y = bundleTop - 2.0 * bundleTop * i / (rays - 1);
      const light::Ray ray = rayWithSlope({bundleX, y}, desmi.slope, Travel::Left);
      cast(ray, dot(ray.start - Point{bundleX, 0.0}, ray.direction));
    }
  }
};

}  // namespace

bool operator==(const Fan& a, const Fan& b) {
  return a.source.x == b.source.x && a.source.y == b.source.y;
}

Scene sceneOf(const Asked& asked) {
  const auto [a, b, c] = deriveLens(asked.deiktisSahl).value();
  return sceneOf(a, b, asked);
}

Scene sceneOf(double a, double b, const Asked& asked) {
  const light::Lens lens = (asked.amfikyrtos ? biconvex : planoConvex)(a, b, asked.deiktisSahl);
  Caster caster{lens, asked.diafragma, {a, b, {}, {}, false}};
  if (const auto* fan = std::get_if<Fan>(&asked.rays)) {
    caster.cast(*fan);
  } else {
    caster.cast(std::get<Desmi>(asked.rays), asked.amfikyrtos ? 201 : 101);
  }
  return {asked, std::make_shared<const Traced>(std::move(caster.traced))};
}

std::string captionOf(const Asked& asked) {
  if (asked.amfikyrtos) return "Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές";
  return std::holds_alternative<Fan>(asked.rays) ? "Επιπεδόκυρτος φακός του Ιμπν Σαχλ "
                                                 : "IBN SAHL'S PLANECONVEX LENS";
}

}  // namespace lensbench::protosfakos
