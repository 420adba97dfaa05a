// What the workbench shows, as a value: layers in the order drawn, each with all that it was drawn
// with, and the one function that draws any such value.
#pragma once

#include <variant>
#include <vector>

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/Bench.h"
#include "optics/poreiaaktinon/Rays.h"

namespace lensbench::poreiaaktinon {

// Which of rays and wave points are drawn for fans and bundles.
struct Provoli {
  bool rays = true;
  bool waves = false;

  friend bool operator==(const Provoli&, const Provoli&) = default;
};

// The lens with everything that explains it: faces, focal circles, rim lines, centres, full
// circles, filled body, and the cardinal points with the construction of the image of the source.
struct LensScene {
  Fakos fakos;
  double n = 1.0;
  Point pigi;  // light source

  friend bool operator==(const LensScene&, const LensScene&) = default;
};

// The cardinal points once more, over what is there.
struct CardinalMarks {
  Fakos fakos;
  double n = 1.0;
  Point pigi;

  friend bool operator==(const CardinalMarks&, const CardinalMarks&) = default;
};

// Rays, wave points or both, of rays that were sent.
struct Light {
  Sent sent;
  Provoli provoli;

  friend bool operator==(const Light&, const Light&) = default;
};

// The white scene under moving waves: focal circles, dotted circles and faces.
struct WaveScene {
  Fakos fakos;
  double n = 1.0;

  friend bool operator==(const WaveScene&, const WaveScene&) = default;
};

// The two fronts of moving waves at a step.
struct Fronts {
  Sent sent;
  int step = 1;

  friend bool operator==(const Fronts&, const Fronts&) = default;
};

using Layer = std::variant<LensScene, CardinalMarks, Light, WaveScene, Fronts>;

struct Shown {
  std::vector<Layer> layers;  // empty after Cls

  friend bool operator==(const Shown&, const Shown&) = default;
};

// Draws the picture from nothing; clears first. Leaves DrawWidth at 1, a solid pen and no fill.
void draw(Canvas& canvas, const Shown& shown);

// Turns the picture of one value, which the canvas holds, into that of another, with less work
// where it can; the canvas is left as draw(canvas, to) leaves it, bit for bit.
void redraw(Canvas& canvas, const Shown& from, const Shown& to);

}  // namespace lensbench::poreiaaktinon
