#include "optics/protosfakos/Waves.h"

#include <cstddef>

#include "optics/light/OpticalPath.h"
#include "optics/light/Vector.h"

namespace lensbench::protosfakos {
namespace {

constexpr int lastRay = 600;

light::Piece pieceBetween(Point from, Point to, light::Medium medium) {
  const double norm = length(to - from);
  return {from, to, norm > 0.0 ? (1.0 / norm) * (to - from) : Point{}, medium};
}

// The path of a recorded ray that starts at start.
light::RayPath pathOf(const Recorded& ray, Point start, double n) {
  using enum light::Medium;
  const Point negated{ray.directionX, ray.directionY};
  const double norm = length(negated);
  const Point direction = norm > 0.0 ? (-1.0 / norm) * negated : Point{};
  light::RayPath path;
  path.pieces = {pieceBetween(start, ray.entry, Air), pieceBetween(ray.entry, ray.exit, Glass),
                 light::Piece{ray.exit, ray.exit + direction, direction, Air}};
  path.count = 3;
  path.n = n;
  return path;
}

const Point* pointOf(std::span<const Recorded> rays, int ray, int front) {
  if (ray < 0 || ray > lastRay || front < 0 || front > lastFront) {
    throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
  }
  const auto i = static_cast<std::size_t>(ray);
  return i < rays.size() ? &rays[i].kymata[static_cast<std::size_t>(front)] : nullptr;
}

}  // namespace

Recorded record(const light::RayPath& path) {
  const auto way = path.way();
  const light::Piece& glass = way[way.size() - 2];
  const Point emerging = way.back().direction;
  return {
      glass.from, glass.to, static_cast<float>(-emerging.x), static_cast<float>(-emerging.y), {}};
}

void layFronts(Recorded& ray, Point start, double n) {
  if (n == 0.0) throwDivisionByZero();
  const light::RayPath path = pathOf(ray, start, n);
  ray.kymata[0] = start;
  double before = 0.0;  // optical path up to the piece
  int j = 1;
  for (const light::Piece& piece : path.pieces) {
    const bool last = &piece == &path.pieces.back();
    const double along = light::opticalLength(path, piece);
    const Point step = (1.0 / light::indexOf(path, piece)) * piece.direction;
    for (; j <= lastFront; ++j) {
      const double rest = frontSpacing * (j - 1) - before;
      if (rest > along && !last) break;
      ray.kymata[static_cast<std::size_t>(j)] = piece.from + rest * step;
    }
    before += along;
  }
}

bool arnhtiko(const Recorded& ray, double n) { return n * length(ray.exit - ray.entry) < 0.0; }

Variant kymataX(std::span<const Recorded> rays, int ray, int front) {
  const Point* p = pointOf(rays, ray, front);
  return p ? Variant(p->x) : Variant();
}

Variant kymataY(std::span<const Recorded> rays, int ray, int front) {
  const Point* p = pointOf(rays, ray, front);
  return p ? Variant(p->y) : Variant();
}

}  // namespace lensbench::protosfakos
