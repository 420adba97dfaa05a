#include "optics/poreiaaktinon/Refraction.h"

#include <cmath>

#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {

Variant sxetikosdeiktis(const Variant& dx, const Variant& dy, const Variant& px, const Variant& py,
                        const Variant& cx, const Variant& cy, const Variant& r, const Variant& n) {
  const SinglePair u = kathetos(px, py, cx, cy, r);
  if (dx * u.x + dy * u.y < 0) return n;
  return 1 / n;
}

DiathlasiApotelesma diathlasi(const Variant& dx, const Variant& dy, const Variant& px,
                              const Variant& py, const Variant& cx, const Variant& cy,
                              const Variant& r, const Variant& n) {
  const Variant tx = (py - cy) / r;
  const Variant ty = (cx - px) / r;
  const Variant T0 = dx * tx + dy * ty;
  const Variant N0 = dy * tx - dx * ty;
  const Variant a1 = gonia(dx, dy, tx, ty);
  const Variant v = sxetikosdeiktis(dx, dy, px, py, cx, cy, r, n);
  const Variant s = Sin(a1);
  if (Abs(s / v) > 1) return {};

  const Variant a2 = toxoimitonou(s / v);
  const Variant T = prosimo(T0) * Abs(Sin(a2));
  const Variant N = prosimo(N0) * Abs(Cos(a2));
  return {toSingle((T * tx - N * ty).value()), toSingle((T * ty + N * tx).value()), boolean(true)};
}

DiafragmaApotelesma elegxosdiafragmatos(const Variant& X, const Variant& yA, const Variant& yB,
                                        const Variant& x0, const Variant& y0, const Variant& dx,
                                        const Variant& dy) {
  const Variant y = dx == 0 ? y0 : y0 + (X - x0) * (dy / dx);
  if (y > yA || y < yB) return {toSingle(X.value()), toSingle(y.value()), boolean(true)};
  return {toSingle(x0.value()), toSingle(y0.value()), boolean(false)};
}

std::optional<Point> stoppedAt(const Diafragma& diafragma, Point start, Point direction) {
  const double slope = direction.y / direction.x;
  const double y = std::isfinite(slope) ? start.y + (diafragma.X - start.x) * slope : start.y;
  if (y > diafragma.yA || y < diafragma.yB) return Point{diafragma.X, y};
  return std::nullopt;
}

}  // namespace lensbench::poreiaaktinon
