#include "optics/protosfakos/RayPath.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace lensbench::protosfakos {
namespace {

// Distances along a ray below which two points are one: a source this near to a face stands on it.
constexpr double touching = 1e-9;

int sign(double v) { return (v > 0.0) - (v < 0.0); }

// Where the diaphragm stops a ray that has the given distance to run before the lens. The diaphragm
// counts only on the side of the start on which that way leads.
std::optional<Point> stopOnDiaphragm(const Ray& ray, double distance, const Diafragma& diafragma) {
  const double offset = diafragma.X - ray.start.x;
  const int side = distance > 0.0 ? sign(ray.direction.x) : 0;
  if (sign(offset) != side) return std::nullopt;
  const double crossing = offset == 0.0 ? 0.0 : offset / ray.direction.x;
  if (distance < crossing || !std::isfinite(crossing)) return std::nullopt;
  const Point p{diafragma.X, ray.start.y + crossing * ray.direction.y};
  if (p.y <= diafragma.upper && p.y >= diafragma.lower) return std::nullopt;
  return p;
}

// The same for a ray that misses the lens: its way before the lens ends at the plane of the rim,
// and one that runs away from that plane has none.
std::optional<Point> stopBesideLens(const Glass& glass, const Ray& ray,
                                    const Diafragma& diafragma) {
  const double offset = glass.rimX() - ray.start.x;
  if (sign(offset) != sign(ray.direction.x)) return std::nullopt;
  return stopOnDiaphragm(ray, offset / ray.direction.x, diafragma);
}

// From the entry point, where the direction in the glass is known, to the exit.
void followInside(const Glass& glass, std::optional<int> enteredFace, RayPath& path) {
  const Ray inside{path.entry, path.inside};
  const auto ahead = throughGlass(glass, inside);
  path.ending = Ending::Trapped;
  path.exit = path.entry;
  if (!ahead || ahead->chord.to <= 0.0) return;
  path.exit = inside.at(ahead->chord.to);
  if (ahead->leftFace == enteredFace) return;

  const auto normal =
      outwardNormal(glass.faces[static_cast<std::size_t>(ahead->leftFace)], path.exit);
  const auto emerging = normal ? refracted(path.inside, *normal, glass.n) : path.inside;
  if (!emerging) {
    path.ending = Ending::TotalReflection;
    return;
  }
  path.exitNormal = normal;
  path.emerging = *emerging;
  path.ending = Ending::Emerged;
}

}  // namespace

Ray rayWithSlope(Point start, double slope, Travel travel) {
  const double run = static_cast<double>(travel) / std::hypot(1.0, slope);
  return {start, {run, run * slope}};
}

std::optional<Point> refracted(Point direction, Point normal, double ratio) {
  const Point against = dot(direction, normal) > 0.0 ? -normal : normal;
  const double sine = ratio * cross(against, direction);
  if (!(std::fabs(sine) < 1.0)) return std::nullopt;
  const double cosine = std::sqrt((1.0 - sine) * (1.0 + sine));
  return sine * turned(against) - cosine * against;
}

RayPath trace(const Glass& glass, const Ray& incident, const Diafragma& diafragma) {
  RayPath path;
  path.incident = incident;
  const auto way = throughGlass(glass, incident);
  const bool meets = way && way->chord.to > touching && way->chord.to - way->chord.from > touching;
  path.startsInGlass = meets && way->chord.from < -touching;
  const double toEntry = meets && !path.startsInGlass ? std::max(0.0, way->chord.from) : 0.0;

  const auto stop = meets ? stopOnDiaphragm(incident, toEntry, diafragma)
                          : stopBesideLens(glass, incident, diafragma);
  if (stop) {
    path.ending = Ending::Stopped;
    path.stop = *stop;
    return path;
  }
  if (!meets) return path;

  path.entry = incident.at(toEntry);
  path.inside = incident.direction;
  if (path.startsInGlass) {
    followInside(glass, std::nullopt, path);
    return path;
  }
  path.entryNormal =
      outwardNormal(glass.faces[static_cast<std::size_t>(way->enteredFace)], path.entry);
  if (!path.entryNormal) {
    // Through a vertex light goes straight on, through the glass and out.
    path.exit = incident.at(way->chord.to);
    path.emerging = incident.direction;
    path.ending = Ending::Emerged;
    return path;
  }
  const auto inside = refracted(incident.direction, *path.entryNormal, 1.0 / glass.n);
  if (!inside) {
    path.exit = path.entry;
    path.ending = Ending::TotalReflection;
    return path;
  }
  path.inside = *inside;
  followInside(glass, way->enteredFace, path);
  return path;
}

}  // namespace lensbench::protosfakos
