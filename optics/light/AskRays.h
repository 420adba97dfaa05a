// What rays that are drawn answer: what happens to them at a face or at the diaphragm, and which
// they are. Also numbers as answers show them.
#pragma once

#include <span>
#include <string>

#include "optics/light/Nearest.h"
#include "optics/light/RayPath.h"
#include "optics/light/Stop.h"

namespace lensbench::light {

// The same in both languages, UTF-8.
struct Phrase {
  const char* greek = "";
  const char* english = "";
};

// The pieces of each ray, the points where it meets a face, and where it ends at one. Rays are
// numbered from 1.
void offerRays(Nearest& nearest, std::span<const RayPath> paths);

// The points where the diaphragm has stopped a ray. blades: where they are dragged, with a blank
// before it; nothing on the screen that is seen.
void offerStops(Nearest& nearest, std::span<const RayPath> paths, const Diafragma& diafragma,
                Phrase blades = {});

// What a wave front answers. origin: what its optical path is counted from.
std::string frontWords(double opticalPath, Phrase origin);

// "(12.50, -3)": whole numbers as such, others with two decimals.
std::string coordinates(Point p);

}  // namespace lensbench::light
