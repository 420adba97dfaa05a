// Waves that move: a set of traced rays and a step give the front, and drawing a step takes away
// the one drawn before.
#pragma once

#include <cstddef>
#include <vector>

#include "optics/poreiaaktinon/RayPath.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench {

// The rays that carry a wave. In a closed set, such as a fan all around its source, the last ray is
// also the neighbour of the first.
struct RaySet {
  std::vector<poreiaaktinon::RayPath> rays;
  bool closed = false;
};

// A wave front as it is drawn: the wave point of each ray that has one, and the pieces that join
// the points of neighbouring rays which have crossed the same faces.
struct Front {
  struct Piece {
    Point from;
    Point to;
  };
  std::vector<Point> points;
  std::vector<Piece> pieces;
};
// The front at an optical path, counted as the rays count theirs, user units.
Front frontAt(const RaySet& set, double opticalPath);

class WaveAnimation {
 public:
  // What a set may hold; its rays are numbered from 0 to 1500.
  static constexpr std::size_t mostRays = 1501;
  // Subscript out of range (9), in words, for a set of more rays.
  static void requireRoomFor(std::size_t rays);

  // The optical path that a front advances in one step: 250 units of path per unit of time, in
  // steps of a hundredth.
  static constexpr double pathPerStep = 250.0 * 0.01;
  // The second front follows this many steps behind the first.
  static constexpr int stepsBehind = 40;

  // Takes over a set; one that has no room is not taken, and nothing moves.
  void start(RaySet set);
  // Forgets the set and what was drawn of it: the picture it stood on is gone.
  void drop();
  const RaySet& set() const { return set_; }

  // Rubs out what was drawn last, mends the scene under it and draws both fronts of a step. The
  // rays are traced again when the index of refraction has changed. Without a set nothing happens.
  void draw(poreiaaktinon::Workbench& workbench, int step);

 private:
  RaySet set_;
  std::vector<Front> drawn_;
};

}  // namespace lensbench
