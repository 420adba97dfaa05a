// What the Ibn Sahl screen shows, as a value: scenes in the order drawn, each with all that it was
// drawn with and the rays that it traced, and the one function that draws any such value.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "canvas/Canvas.h"
#include "canvas/Variant.h"
#include "optics/light/RayPath.h"
#include "optics/light/Stop.h"

namespace lensbench::protosfakos {

using light::Diafragma;

// 61 rays of slopes 0.9 to -0.9 from a source; rightwards from a source left of the lens, otherwise
// leftwards.
struct Fan {
  Point source;
};
// desmi: bundle of parallel rays of a slope from x = 130 leftwards, 101 through the plano-convex
// lens and 201 through the biconvex one.
struct Desmi {
  double slope = 0.0;
};
using Rays = std::variant<Fan, Desmi>;

// What is asked for: a lens, its light, and what is left out of the picture.
struct Asked {
  bool amfikyrtos = false;    // biconvex; false is the plano-convex lens
  double deiktisSahl = 1.5;   // index of refraction, at least 1
  Rays rays;
  Diafragma diafragma;
  bool onlyRays = false;   // no fronts
  bool onlyWaves = false;  // no rays, no normals, no ideal bundle
};
bool operator==(const Asked& a, const Asked& b);

// A scene with its rays traced and its wave points laid.
struct Traced;
struct Scene {
  Asked asked;
  std::shared_ptr<const Traced> traced;
};
// Traces everything once. The index must not be below 1.
Scene sceneOf(const Asked& asked);

// The fronts of the same scene drawn again in ForeColor, with their wave points counted from the
// source, or, after a bundle on the workbench (desmiMode), as those of a bundle from Empty starts.
struct FrontsAgain {
  Scene scene;
  bool desmiMode = false;
};

using Layer = std::variant<Scene, FrontsAgain>;
bool operator==(const Layer& a, const Layer& b);

struct Shown {
  std::vector<Layer> layers;

  friend bool operator==(const Shown&, const Shown&) = default;
};
// Adds a layer. An equal one below, whose pixels this one repeats, is taken out.
void add(Shown& shown, Layer layer);

// The caption that the scene gives its screen.
std::string captionOf(const Asked& asked);

void draw(Canvas& canvas, const Shown& shown);
void redraw(Canvas& canvas, const Shown& from, const Shown& to);

}  // namespace lensbench::protosfakos
