// The path of one ray through the lens, traced once into a value that drawing and waves read.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "canvas/Canvas.h"
#include "optics/poreiaaktinon/DrawingArea.h"
#include "optics/poreiaaktinon/SurfaceSearch.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench::poreiaaktinon {

// Everything that a ray can meet on its way.
struct OpticalSetup {
  Fakos fakos;
  double n = 1.0;                      // index of refraction of the lens over that around it
  std::optional<Diafragma> diafragma;  // nothing: no ray is stopped
  Edges edges;                         // of the drawing area, where the last piece ends
};
// The workbench as it stands now.
OpticalSetup setupOf(Workbench& bench);

// Where on its way through the lens a straight piece of a path lies.
enum class Region : std::uint8_t { BeforeLens, Glass, BehindLens };

// How a path ends: at the edge of the drawing area, on a blade, or at a face that reflects it
// totally.
enum class Ending : std::uint8_t { Edge, Diaphragm, TotalReflection };

// The faces that a ray has crossed, in order; Face::None where it has crossed fewer.
using FacesCrossed = std::array<Face, 2>;

// At most three straight pieces; piece i runs from points[i] to points[i + 1].
struct RayPath {
  std::array<Point, 4> points;
  std::array<Point, 3> directions;  // of unit length
  std::array<Region, 3> regions{};
  int pieces = 0;
  FacesCrossed faces{};
  Ending ending = Ending::Edge;
  double n = 1.0;      // index of the glass
  double phase = 0.0;  // optical path at the start, user units

  Point end() const { return points[static_cast<std::size_t>(pieces)]; }
  // True when the ray runs past the lens to the edge of the drawing area.
  bool missed() const {
    return pieces == 1 && regions[0] == Region::BeforeLens && ending == Ending::Edge;
  }
};

// Traces a ray from start along the direction, which may be of any length; the zero direction and
// an index of 0 are Division by zero (11). Each piece is tested against the diaphragm only where it
// reaches x = X. A start in the glass makes the first piece a piece of glass. A ray that leaves the
// lens beyond the drawing area and moves on away from it ends there.
RayPath tracePath(const OpticalSetup& setup, Point start, Point direction, double phase = 0.0);

}  // namespace lensbench::poreiaaktinon
