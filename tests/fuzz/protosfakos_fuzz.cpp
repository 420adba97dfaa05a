// Hyperbolic lenses: any index, any source or bundle, any diaphragm, drawn with its fronts.
#include "canvas/Recording.h"
#include "optics/protosfakos/Picture.h"
#include "tests/fuzz/Input.h"

namespace lensbench {
namespace {

using namespace protosfakos;

Asked asked(fuzz::Input& input) {
  Asked any;
  any.amfikyrtos = input.flag();
  any.deiktisSahl = input.flag() ? 1.0 + input.below(151) / 100.0 : input.between(1.0, 2.5);
  if (input.flag()) {
    any.rays = Fan{input.point(150.0)};
  } else {
    any.rays = Desmi{input.coordinate(100.0)};
  }
  const double a = input.coordinate(120.0);
  const double b = input.coordinate(120.0);
  any.diafragma = {input.coordinate(150.0), std::max(a, b), std::min(a, b)};
  any.onlyRays = input.flag();
  any.onlyWaves = input.flag();
  return any;
}

void run(fuzz::Input input) {
  const Scene scene = sceneOf(asked(input));
  for (const light::RayPath& path : scene.traced->paths) fuzz::requirePath(path);
  for (const Recorded& ray : scene.traced->recorded) {
    for (const Point p : ray.kymata) fuzz::require(fuzz::finite(p), "a wave point is finite");
  }
  Recording canvas(720.0, 720.0);
  canvas.Scale(-120.0, 120.0, 150.0, -120.0);
  draw(canvas, {{scene, FrontsAgain{scene, input.flag()}}});
}

}  // namespace
}  // namespace lensbench

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lensbench::run({data, size});
  return 0;
}
