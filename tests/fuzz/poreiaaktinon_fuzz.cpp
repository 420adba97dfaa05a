// Spherical lenses: any workbench is sent light, asked for its fronts and drawn.
#include "canvas/Recording.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Picture.h"
#include "tests/fuzz/Input.h"

namespace lensbench {
namespace {

using namespace poreiaaktinon;

constexpr light::Edges edges{-384.0, 384.0, -216.0, 216.0};

Bench bench(fuzz::Input& input) {
  Bench any{{-input.between(0.0, 500.0), input.between(50.0, 500.0), input.between(0.0, 500.0),
             input.between(0.0, 500.0)},
            input.below(211) / 100.0 + 0.4,
            {}};
  // A bar gives whole numbers.
  if (input.flag()) {
    any.fakos = {std::round(any.fakos.xc1), std::round(any.fakos.R1), std::round(any.fakos.xc2),
                 std::round(any.fakos.R2)};
  }
  const double a = input.coordinate(250.0);
  const double b = input.coordinate(250.0);
  any.diafragma = Diafragma{input.coordinate(400.0), std::max(a, b), std::min(a, b)};
  return any;
}

Rays rays(fuzz::Input& input) {
  if (input.flag()) return Fan{input.point(400.0), input.between(1.0, 90.0)};
  return Desmi{input.coordinate(7.0), 2 + input.below(60)};
}

void run(fuzz::Input input) {
  const Bench through = bench(input);
  const Sent sent = send(through, rays(input), edges);
  for (const light::RayPath& path : *sent.paths) fuzz::requirePath(path);
  for (const double length : {0.0, 50.0, 500.0}) {
    for (const Point p : frontAt(sent, length).points) {
      fuzz::require(fuzz::finite(p), "a front is finite");
    }
  }
  // What is drawn is checked by the canvas, which takes no number that is not finite.
  const Point source = input.point(400.0);
  Recording canvas(1366.0, 768.0);
  canvas.Scale(edges.left, edges.upper, edges.right, edges.lower);
  draw(canvas, {{LensScene{through.fakos, through.n, source}, Light{sent, {true, true}},
                 CardinalMarks{through.fakos, through.n, source}, Fronts{sent, input.below(241)}}});
}

}  // namespace
}  // namespace lensbench

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lensbench::run({data, size});
  return 0;
}
