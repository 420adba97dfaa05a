#include "optics/poreiaaktinon/RayPath.h"

#include "canvas/RuntimeError.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Refraction.h"

namespace lensbench::poreiaaktinon {
namespace {

// Adds the piece up to the point where it ends, or where the diaphragm stops it on the way; false
// when it was stopped.
bool addPiece(RayPath& path, const OpticalSetup& setup, Point direction, Region region, Point end) {
  const auto piece = static_cast<std::size_t>(path.pieces++);
  const Point start = path.points[piece];
  path.directions[piece] = direction;
  path.regions[piece] = region;
  path.points[piece + 1] = end;
  if (!setup.diafragma) return true;
  const double X = setup.diafragma->X;
  if ((X < start.x && X < end.x) || (X > start.x && X > end.x)) return true;
  const auto stop = stoppedAt(*setup.diafragma, start, direction);
  if (!stop) return true;
  path.points[piece + 1] = *stop;
  path.ending = Ending::Diaphragm;
  return false;
}

// Adds the piece up to a face and turns the direction there; false when the ray ends with it.
bool crossFace(RayPath& path, const OpticalSetup& setup, const Crossing& crossing,
               Point& direction) {
  const Region region = crossing.entering ? Region::BeforeLens : Region::Glass;
  if (!addPiece(path, setup, direction, region, crossing.point)) return false;
  const double ratio = crossing.entering ? 1.0 / path.n : path.n;
  const auto beyond = refracted(direction, crossing.normal, ratio);
  if (!beyond) {
    path.ending = Ending::TotalReflection;
    return false;
  }
  path.faces[path.faces[0] == Face::None ? 0 : 1] = crossing.face;
  direction = *beyond;
  return true;
}

}  // namespace

OpticalSetup setupOf(Workbench& bench) {
  return {bench.fakos(), bench.deiktisdiathlasis(), bench.diafragma(), edgesOf(bench.canvas())};
}

RayPath tracePath(const OpticalSetup& setup, Point start, Point direction, double phase) {
  if (setup.n == 0.0) throwDivisionByZero();
  RayPath path;
  path.points[0] = start;
  path.n = setup.n;
  path.phase = phase;
  direction = unit(direction);

  Region last = Region::BeforeLens;
  if (hasLens(setup.fakos)) {
    auto crossing = firstCrossing(setup.fakos, start, direction);
    if (crossing && crossing->entering) {
      if (!crossFace(path, setup, *crossing, direction)) return path;
      crossing = exitCrossing(setup.fakos, crossing->point, direction);
    }
    if (crossing) {
      if (!crossFace(path, setup, *crossing, direction)) return path;
      last = Region::BehindLens;
    }
  }
  const Point from = path.end();
  addPiece(path, setup, direction, last, leavingPoint(setup.edges, from, direction));
  return path;
}

}  // namespace lensbench::poreiaaktinon
