// The path of a ray through a hyperbolic lens by what its pieces mean.
#pragma once

#include <cstddef>
#include <optional>
#include <variant>

#include "optics/protosfakos/Lens.h"

namespace lensbench::protosfakos {

// Wide open, so that a test that is not about the diaphragm never meets it.
constexpr Diafragma wideOpen{130.0, 1e9, -1e9};

enum class End { Missed, Stopped, TotalReflection, Trapped, Emerged };

// A normal is there only where the ray is refracted.
struct Way {
  light::Ray incident;
  End ending = End::Missed;
  Point stop;
  bool startsInGlass = false;  // then entry is the start itself
  Point entry;
  std::optional<Point> entryNormal;
  Point inside;
  Point exit;
  std::optional<Point> exitNormal;
  Point emerging;
};

inline End endOf(const light::RayPath& path) {
  switch (path.ending) {
    case light::Ending::Diaphragm:
      return End::Stopped;
    case light::Ending::TotalReflection:
      return End::TotalReflection;
    case light::Ending::Trapped:
      return End::Trapped;
    case light::Ending::Open:
      break;
  }
  return path.missed() ? End::Missed : End::Emerged;
}

inline Way wayOf(const light::RayPath& path) {
  Way way;
  way.incident = {path.start(), path.pieces[0].direction};
  way.ending = endOf(path);
  if (way.ending == End::Stopped) way.stop = path.end();
  if (way.ending == End::Stopped || way.ending == End::Missed) return way;
  way.startsInGlass = path.pieces[0].medium == light::Medium::Glass;
  const std::size_t glass = way.startsInGlass ? 0 : 1;
  way.entry = way.startsInGlass ? path.start() : path.pieces[0].to;
  if (!way.startsInGlass && path.meetings[0].refracts) way.entryNormal = path.meetings[0].normal;
  way.exit = path.end();  // of a ray that is reflected on entry, the entry
  if (path.way().size() <= glass) return way;
  way.inside = path.pieces[glass].direction;
  way.exit = path.pieces[glass].to;
  if (way.ending != End::Emerged) return way;
  if (path.meetings[glass].refracts) way.exitNormal = path.meetings[glass].normal;
  way.emerging = path.pieces[glass + 1].direction;
  return way;
}

// Semi-axis b of its hyperbolas.
inline double bOf(const light::Lens& lens) { return std::get<light::Hyperbola>(lens.left).b; }

inline bool isBiconvex(const light::Lens& lens) {
  return std::holds_alternative<light::Hyperbola>(lens.right);
}

// Unit normal at a point of a face, out of the glass; none at a vertex.
inline std::optional<Point> normalAt(const light::Face& face, Point p) {
  return std::visit([p](const auto& f) { return light::outwardNormal(f, p); }, face);
}

inline Way wayThrough(const light::Lens& lens, const light::Ray& ray, const Diafragma& diafragma) {
  return wayOf(trace(lens, ray, diafragma));
}

}  // namespace lensbench::protosfakos
