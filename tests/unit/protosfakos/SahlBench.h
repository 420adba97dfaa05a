// Scenes of the hyperbolic lenses drawn on a recording, one after the other.
#pragma once

#include <cstddef>
#include <vector>

#include "canvas/Recording.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/Picture.h"
#include "tests/unit/protosfakos/Way.h"

namespace lensbench::protosfakos {

struct SahlBench {
  explicit SahlBench(double n = 1.5) : lens(deriveLens(n).value()) {
    asked.deiktisSahl = n;
    asked.diafragma = wideOpen;
  }

  void fan(bool amfikyrtos, double x, double y) { draw(amfikyrtos, Fan{{x, y}}); }
  void bundle(bool amfikyrtos, double slope) { draw(amfikyrtos, Desmi{slope}); }

  // Of the scene drawn last.
  int recorded() const { return scene.traced->plithosaktinon(); }
  const Recorded& ray(int k) const {
    return scene.traced->recorded.at(static_cast<std::size_t>(k));
  }
  Point kymata(int k, int front) const { return ray(k).kymata.at(static_cast<std::size_t>(front)); }
  const std::vector<Operation>& operations() const { return recording.operations(); }

  HyperbolaAxes lens;
  Asked asked;  // what is left out of the pictures, and the diaphragm
  Scene scene;
  Recording recording{600.0, 600.0};

 private:
  void draw(bool amfikyrtos, const Rays& rays) {
    asked.amfikyrtos = amfikyrtos;
    asked.rays = rays;
    scene = sceneOf(asked);
    drawOver(recording, scene);
  }
};

}  // namespace lensbench::protosfakos
