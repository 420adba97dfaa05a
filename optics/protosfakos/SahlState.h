// What the hyperbolic lenses, their screen, the lens menu and the workbench share.
#pragma once

#include <array>

#include "canvas/Variant.h"
#include "optics/protosfakos/CheckedArray.h"

namespace lensbench::protosfakos {

// Fronts 1..30 are drawn; 0 is where a ray starts.
constexpr int lastFront = 30;
// The points of one ray, one for each front.
struct WavePoints {
  Variant& operator[](int front);
  const Variant& operator[](int front) const;

 private:
  std::array<Variant, lastFront + 1> points_;
};
// kymata: waves. Ray index first, front index second: kymataX[ray][front].
using Kymata = CheckedArray<WavePoints, 600>;
template <class T>
using PerRay = CheckedArray<T, 500>;

struct SahlState {
  Variant deiktisSahl;                   // index of refraction, the eccentricity of the hyperbola
  bool amfikyrtosSahl = false;           // amfikyrtos: biconvex; False is the plano-convex lens
  Variant pigiX, pigiY;                  // pigi: source of the fan, user units
  Variant plithosaktinon;                // number of rays that are recorded below
  bool desmiMode = false;                // desmi: bundle; what the workbench drew last
  Kymata kymataX, kymataY;               // wave points, user units
  PerRay<Variant> entryX, entryY;        // where a recorded ray enters the glass, user units
  PerRay<Variant> exitX, exitY;          // where it leaves it
  PerRay<float> directionX, directionY;  // its emerging direction, negated
  bool onlyWavesAsked = false;           // "ONLY WAVES" was chosen and no press came after it
  bool negativeShown = false;            // the message of the wave routines, once for a scene

  // Forgets the rays of the scene before; their wave points are left to be overwritten.
  void clearRays();
};

// The one state of the program.
SahlState& state();

}  // namespace lensbench::protosfakos
