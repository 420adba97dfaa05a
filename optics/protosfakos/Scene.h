// A scene of the Ibn Sahl screen as a value: what is asked for, and the rays that it traces.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "optics/light/RayPath.h"
#include "optics/light/Stop.h"
#include "optics/protosfakos/Waves.h"

namespace lensbench::protosfakos {

using light::Diafragma;

// 61 rays of slopes 0.9 to -0.9 from a source; rightwards from a source left of the lens, otherwise
// leftwards. Optical paths are counted from the source.
struct Fan {
  Point source;
};
bool operator==(const Fan& a, const Fan& b);

// desmi: bundle of parallel rays of a slope from x = 130 leftwards, from y = 100 down to -100, 101
// through the plano-convex lens and 201 through the biconvex one. Optical paths are counted from
// the plane through (130, 0) square to the rays.
struct Desmi {
  double slope = 0.0;

  friend bool operator==(const Desmi&, const Desmi&) = default;
};

using Rays = std::variant<Fan, Desmi>;

// What is asked for: a lens, its light, and what is left out of the picture.
struct Asked {
  bool amfikyrtos = false;   // biconvex; false is the plano-convex lens
  double deiktisSahl = 1.5;  // index of refraction
  Rays rays{};
  Diafragma diafragma{};
  bool onlyRays = false;   // no fronts
  bool onlyWaves = false;  // no rays, no normals, no ideal bundle

  friend bool operator==(const Asked&, const Asked&) = default;
};

// The rays of a scene, traced once.
struct Traced {
  double a = 0.0;  // semi-axes of the hyperbolas, user units
  double b = 0.0;
  std::vector<light::RayPath> paths;  // of all rays, in the order drawn
  std::vector<Recorded> recorded;     // of those that leave the lens
  bool arnhtiko = false;              // a negative optical length, which the screen tells once

  // plithos aktinon: number of rays that are recorded.
  int plithosaktinon() const { return static_cast<int>(recorded.size()); }
};

// The traced rays follow from what was asked, so that alone is compared.
struct Scene {
  Asked asked;
  std::shared_ptr<const Traced> traced;

  friend bool operator==(const Scene& a, const Scene& b) { return a.asked == b.asked; }
};

// The scene of the lens whose eccentricity is its index, which must not be below 1 (deriveLens
// tells).
Scene sceneOf(const Asked& asked);
// The scene of a lens with other semi-axes. a = 0 and an index of 0 are Division by zero (11).
Scene sceneOf(double a, double b, const Asked& asked);

// The caption that the scene gives its screen, UTF-8.
std::string captionOf(const Asked& asked);

}  // namespace lensbench::protosfakos
