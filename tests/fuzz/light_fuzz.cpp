// The one engine: any lens, any ray, any conditions.
#include "optics/light/OpticalPath.h"
#include "optics/light/Tracer.h"
#include "tests/fuzz/Input.h"

namespace lensbench {
namespace {

using namespace light;

// Two circles, or a hyperbola with a plane or its mirror image: glass without bounds is no lens.
Lens lens(fuzz::Input& input) {
  const double n = input.between(0.4, 2.5);
  const auto circle = [&input] {
    const Point centre = input.point(600.0);
    return Circle{centre, std::fabs(input.coordinate(500.0))};
  };
  if (input.flag()) {
    const Circle left = circle();
    return {left, circle(), n};
  }
  const Hyperbola left{input.between(0.1, 100.0), std::fabs(input.coordinate(300.0)), {}};
  if (input.flag()) return {left, Plane{input.coordinate(200.0)}, n};
  Hyperbola right = left;
  right.mirror = input.coordinate(200.0);
  return {left, right, n};
}

Conditions conditions(fuzz::Input& input) {
  Conditions all;
  all.onFace = input.flag() ? 0.0 : 0.0005;
  all.touching = input.flag() ? 0.0 : 1e-9;
  all.outAsIn = input.flag();
  if (input.flag()) {
    const double a = input.coordinate(300.0);
    const double b = input.coordinate(300.0);
    all.diafragma = Diafragma{input.coordinate(400.0), std::max(a, b), std::min(a, b)};
  }
  if (input.flag()) all.beforeLens = input.coordinate(200.0);
  if (input.flag()) {
    all.end = Edges{-400.0, 400.0, -220.0, 220.0};
  } else {
    all.end = Lengths{100.0, 530.0};
  }
  return all;
}

void run(fuzz::Input input) {
  const Lens glass = lens(input);
  const Conditions under = conditions(input);
  do {
    const double angle = input.between(-7.0, 7.0);
    const Ray ray{input.point(1000.0), {std::cos(angle), std::sin(angle)}};
    const RayPath path = trace(glass, ray, under, input.coordinate(1000.0));
    fuzz::requirePath(path);
    for (const double length : {0.0, 10.0, 333.3, 2000.0}) {
      const auto front = pointAtOpticalPath(path, path.phase + length);
      fuzz::require(!front || fuzz::finite(front->position), "a wave point is finite");
    }
  } while (!input.empty());
}

}  // namespace
}  // namespace lensbench

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lensbench::run({data, size});
  return 0;
}
