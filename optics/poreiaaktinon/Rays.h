// The rays that are sent through a spherical lens: one, the fan of a point source, a parallel
// bundle.
#pragma once

#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "optics/light/Edges.h"
#include "optics/light/RayPath.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Bench.h"

namespace lensbench::poreiaaktinon {

// Int(360 / vima) rays all around the source, ray k at k * vima degrees counter-clockwise from
// positive x; optical paths are counted from the source.
struct Fan {
  Point source;
  double vima = 1.0;  // step, degrees

  friend bool operator==(const Fan&, const Fan&) = default;
};
int rayCount(double vima);

// desmi: bundle of desmi1 + 1 parallel rays at an angle with the horizontal in radians, starting at
// (-200 - k tan(angle), k / cos(angle)) for k = 200 - i * 400 / desmi1. Optical paths are counted
// from the plane through (-200, 0) square to the rays. Kept on purpose: the starts do not stand
// on that plane.
struct Desmi {
  double gonia = 0.0;  // angle, radians
  int desmi1 = 1;

  friend bool operator==(const Desmi&, const Desmi&) = default;
};

// One ray, along a direction of any length.
struct SingleRay {
  Point source;
  Point direction;

  friend bool operator==(const SingleRay&, const SingleRay&) = default;
};

using Rays = std::variant<Fan, Desmi, SingleRay>;

// Rays that were sent, with the paths that they took: traced once, shared by whoever draws, moves
// or asks them. Two are equal when they were sent alike, through the same bench, to the same edges.
// A value that is only kept may be without its paths, which resent traces again.
struct Sent {
  Bench bench;
  Rays rays;
  light::Edges edges;
  std::shared_ptr<const std::vector<light::RayPath>> paths;

  // True when the last ray is also the neighbour of the first: a fan all around its source.
  bool closed() const { return std::holds_alternative<Fan>(rays); }

  friend bool operator==(const Sent& a, const Sent& b) {
    return a.bench == b.bench && a.rays == b.rays && a.edges == b.edges;
  }
};

// Traces the rays. An index of 0 and a direction without length are Division by zero (11).
Sent send(const Bench& bench, const Rays& rays, const light::Edges& edges);

// The same rays through another bench or to other edges; the very same value when nothing differs,
// and known where that is what would be traced.
Sent resent(const Sent& sent, const Bench& bench, const light::Edges& edges,
            const std::optional<Sent>& known = {});

// Calls a function with what each layer of a picture sent.
template <class Shown, class Visit>
void visitSent(Shown& shown, const Visit& visit) {
  const auto in = [&](auto& layer) {
    if constexpr (requires { layer.sent; }) visit(layer.sent);
  };
  for (auto& layer : shown.layers) std::visit(in, layer);
}

// The same picture on a drawing area with these edges: what its layers sent is traced to them.
template <class Shown>
Shown fittedTo(const light::Edges& edges, Shown shown, const std::optional<Sent>& known = {}) {
  visitSent(shown, [&](Sent& sent) { sent = resent(sent, sent.bench, edges, known); });
  return shown;
}

// The same picture to be kept, without the traced paths; fittedTo traces them again.
template <class Shown>
Shown untraced(Shown shown) {
  visitSent(shown, [](Sent& sent) { sent.paths.reset(); });
  return shown;
}

}  // namespace lensbench::poreiaaktinon
