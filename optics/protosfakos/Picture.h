// What the Ibn Sahl screen shows, as a value: scenes in the order drawn, each with all that it was
// drawn with and the rays that it traced, and the one function that draws any such value.
#pragma once

#include <variant>
#include <vector>

#include "canvas/Canvas.h"
#include "optics/protosfakos/Scene.h"

namespace lensbench::protosfakos {

// The fronts of a scene once more, in ForeColor, with its own wave points, or, after a bundle on
// the workbench, with those that all rays but the first have when they start at (0, 0). Kept on
// purpose: what the workbench sent last decides, not the rays of the scene.
struct FrontsAgain {
  Scene scene;
  bool desmiMode = false;  // desmi: bundle; what the workbench sent last

  friend bool operator==(const FrontsAgain&, const FrontsAgain&) = default;
};

// The rays whose wave points it joins.
std::vector<Recorded> raysOf(const FrontsAgain& again);

using Layer = std::variant<Scene, FrontsAgain>;

// The scene that a layer shows, or whose fronts it shows.
Scene& sceneIn(Layer& layer);

struct Shown {
  std::vector<Layer> layers;  // empty after Cls

  friend bool operator==(const Shown&, const Shown&) = default;
};
// Adds a layer on top. An equal one below, whose pixels this one repeats, is taken out.
void add(Shown& shown, Layer layer);

// The same picture to be kept, without the traced rays; traced puts them in again.
Shown untraced(Shown shown);
Shown traced(Shown shown);

// Draws a scene over what is there: outline, ideal bundle, marks, each ray in turn, fronts.
// Leaves DrawWidth at 1.
void drawOver(Canvas& canvas, const Scene& scene);

// Draws the picture from nothing; clears first.
void draw(Canvas& canvas, const Shown& shown);

// Turns the picture of one value, which the canvas holds, into that of another, with less work
// where it can; the canvas is left as draw(canvas, to) leaves it, bit for bit.
void redraw(Canvas& canvas, const Shown& from, const Shown& to);

}  // namespace lensbench::protosfakos
