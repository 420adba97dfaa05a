#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {

Variant toxoimitonou(Variant s) {
  if (s > 1) return {};
  if (s == 1) return pi / 2.0;
  if (s == -1) return -pi / 2.0;
  if (Abs(s) < 1) return Atn(s / Sqr(1 + (-s * s)));
  return {};
}

Variant estiakiapostasi(Variant R1, Variant R2, Variant n) {
  const Variant D = (1 / R1 + 1 / R2) * (n - 1);
  if (D == 0) return {};
  return 1 / D;
}

SimeiaTomis tomikyklonapostasis(Variant d, Variant r1, Variant r2) {
  const Variant dd = d * d;
  const Variant rr1 = r1 * r1;
  const Variant rr2 = r2 * r2;
  const Variant D = -(dd * dd) + 2 * dd * (rr1 + rr2) - rr2 * rr2 - rr1 * rr1 + 2 * rr1 * rr2;
  if (D < 0) return {};
  const double x = ((dd + rr1 - rr2) / (2 * d)).value();
  const double y = (Sqr(D) / (2 * d)).value();
  return {x, y, x, -y, boolean(true)};
}

SimeiaTomis tomikyklonaxona(Variant a, Variant b, Variant ra, Variant rb) {
  if (a == b) return {};
  const Variant d = b - a;
  const Variant h = (d + (ra * ra - rb * rb) / d) * 0.5;
  const Variant kk = ra * ra - h * h;
  if (kk < 0) return {};
  const double x = (a + h).value();
  const double k = Sqr(kk).value();
  return {x, k, x, -k, boolean(true)};
}

}  // namespace lensbench::poreiaaktinon
