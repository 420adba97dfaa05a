#include "optics/poreiaaktinon/Geometry.h"

#include "optics/poreiaaktinon/Numbers.h"

namespace lensbench::poreiaaktinon {

double apostasi(const Variant& x1, const Variant& y1, const Variant& x2, const Variant& y2) {
  const Variant dx = x1 - x2;
  const Variant dy = y1 - y2;
  return Sqr(dx * dx + dy * dy).value();
}

Variant toxoimitonou(const Variant& s) {
  if (s > 1) return {};
  if (s == 1) return pi / 2.0;
  if (s == -1) return -pi / 2.0;
  if (Abs(s) < 1) return Atn(s / Sqr(1 + (-s * s)));
  return {};
}

Variant estiakiapostasi(const Variant& R1, const Variant& R2, const Variant& n) {
  const Variant D = (1 / R1 + 1 / R2) * (n - 1);
  if (D == 0) return {};
  return 1 / D;
}

SinglePair kathetos(const Variant& px, const Variant& py, const Variant& cx, const Variant& cy,
                    const Variant& r) {
  return {toSingle(((px - cx) / r).value()), toSingle(((py - cy) / r).value())};
}

Variant prosimo(const Variant& v) { return Sgn(v); }

Variant gonia(const Variant& ax, const Variant& ay, const Variant& bx, const Variant& by) {
  const Variant lengths = Sqr(ax * ax + ay * ay) * Sqr(bx * bx + by * by);
  return toxoimitonou((ax * bx + ay * by) / lengths);
}

}  // namespace lensbench::poreiaaktinon
