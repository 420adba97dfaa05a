#include "optics/protosfakos/Repeat.h"

#include <utility>

namespace lensbench::protosfakos {

Shown repeated(const Shown& stood, const Asked& now) {
  Shown next;
  for (Layer layer : stood.layers) {
    Scene& scene = sceneIn(layer);
    Asked asked = now;
    if (std::holds_alternative<Desmi>(scene.asked.rays)) asked.rays = scene.asked.rays;
    if (asked != scene.asked) scene = {asked, nullptr};
    add(next, std::move(layer));
  }
  return traced(std::move(next));
}

}  // namespace lensbench::protosfakos
