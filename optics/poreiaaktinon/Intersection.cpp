#include "optics/poreiaaktinon/Intersection.h"

#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {
namespace {

Variant square(const Variant& v) { return v * v; }

SimeiaTomis verticalLine(const Variant& cx, const Variant& cy, const Variant& r,
                         const Variant& px) {
  const Variant q = square(r) - square(px - cx);
  if (q <= 0) return {};
  const Variant upper = cy + Sqr(q);
  const Variant lower = cy - Sqr(q);
  const bool found = apostasi(px, upper, cx, cy) <= r && apostasi(px, lower, cx, cy) <= r;
  return {px.value(), upper.value(), px.value(), lower.value(), boolean(found)};
}

}  // namespace

SimeiaTomis tomikyklonapostasis(const Variant& d, const Variant& r1, const Variant& r2) {
  const Variant dd = square(d);
  const Variant rr1 = square(r1);
  const Variant rr2 = square(r2);
  const Variant D = -square(dd) + 2 * dd * (rr1 + rr2) - square(rr2) - square(rr1) + 2 * rr1 * rr2;
  if (D < 0) return {};
  const double x = ((dd + rr1 - rr2) / (2 * d)).value();
  const double y = (Sqr(D) / (2 * d)).value();
  return {x, y, x, -y, boolean(true)};
}

SimeiaTomis tomikyklonaxona(const Variant& a, const Variant& b, const Variant& ra,
                            const Variant& rb) {
  if (a == b) return {};
  const Variant d = b - a;
  const Variant h = (d + (square(ra) - square(rb)) / d) * 0.5;
  const Variant kk = square(ra) - square(h);
  if (kk < 0) return {};
  const double x = (a + h).value();
  const double k = Sqr(kk).value();
  return {x, k, x, -k, boolean(true)};
}

bool nearCircle(const Variant& first, const Variant& second, const Variant& r) {
  return first <= r * 1.00005 && second <= r * 1.000005;
}

SimeiaTomis tomieytheiaskyklou(const Variant& cx, const Variant& cy, const Variant& r,
                               const Variant& dx, const Variant& dy, const Variant& px,
                               const Variant& py) {
  if (dx == 0) return verticalLine(cx, cy, r, px);

  const Variant m = dy / dx;
  const Variant b = py - m * px;
  const Variant A = square(m) + 1;
  const Variant B = 2 * m * b - 2 * m * cy - 2 * cx;
  const Variant C = square(cx) + square(cy) + square(b) - 2 * b * cy - square(r);
  const Variant discriminant = square(B) - 4 * A * C;
  if (discriminant <= 0) return {px.value(), py.value(), px.value(), py.value(), 0};

  const Variant root = Sqr(discriminant);
  const Variant x1 = (-B + root) / (2 * A);
  const Variant x2 = (-B - root) / (2 * A);
  const Variant y1 = m * x1 + b;
  const Variant y2 = m * x2 + b;
  const bool found = nearCircle(apostasi(x1, y1, cx, cy), apostasi(x2, y2, cx, cy), r);
  return {x1.value(), y1.value(), x2.value(), y2.value(), boolean(found)};
}

}  // namespace lensbench::poreiaaktinon
