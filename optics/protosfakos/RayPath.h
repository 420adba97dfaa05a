// The path of one ray through a lens, traced once into a value by exact refraction.
#pragma once

#include <optional>

#include "optics/protosfakos/Glass.h"
#include "optics/protosfakos/SahlScreen.h"

namespace lensbench::protosfakos {

enum class Ending {
  Missed,           // never meets the lens
  Stopped,          // ends on the diaphragm before the lens
  TotalReflection,  // ends at a face
  Trapped,          // meets no other face ahead and ends at the edge of the glass
  Emerged           // goes on in air
};

// Points in user units, directions and normals of length 1, normals out of the glass. A normal is
// there only where the ray is refracted.
struct RayPath {
  Ray incident;  // from the start of the ray
  Ending ending = Ending::Missed;
  Point stop;                  // Stopped: on the line of the diaphragm
  bool startsInGlass = false;  // then entry is the start itself
  Point entry;                 // all others but Missed: first point of the glass
  std::optional<Point> entryNormal;
  Point inside;                     // direction in the glass
  Point exit;                       // last point in the glass
  std::optional<Point> exitNormal;  // Emerged
  Point emerging;                   // Emerged: direction in air
};

// A ray of the given slope that travels to the right or to the left. Exact also for the slope that
// Tan gives for 90 degrees.
enum class Travel { Left = -1, Right = 1 };
Ray rayWithSlope(Point start, double slope, Travel travel);

// Snell's law for a ray that meets a surface with unit normal (on either side); ratio is the index
// before over the index behind. None is total reflection, the sine of 1 included.
std::optional<Point> refracted(Point direction, Point normal, double ratio);

// Follows a ray to where it leaves the lens or ends. A diaphragm counts only before the lens: on
// the way to the entry point, or, for a ray that misses, on the way to the plane of the rim.
RayPath trace(const Glass& glass, const Ray& incident, const Diafragma& diafragma);

}  // namespace lensbench::protosfakos
