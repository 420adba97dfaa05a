#include "optics/protosfakos/Hyperbola.h"

#include <cmath>

namespace lensbench::protosfakos {
namespace {

enum class Root { Plus, Minus };

// root is the sign of √D for a line steeper than the asymptotes; it is the other one below that.
Variant abscissa(Root root, const Variant& m, const Variant& q, const Variant& b,
                 const Variant& a) {
  const Variant asymptote = b / a;
  const Variant A = m * m - asymptote * asymptote;
  if (A == 0) return -(q * q + b * b) / (2 * m * q);
  const Variant D = b * b * ((q * q + b * b) / (a * a) - m * m);
  if (D < 0) return {};
  const bool plus = (root == Root::Plus) == (A > 0);
  return (plus ? -m * q + Sqr(D) : -m * q - Sqr(D)) / A;
}

}  // namespace

std::optional<HyperbolaAxes> deriveLens(const Variant& n) {
  constexpr double a = semiAxis;
  const double c = n.value() * a;
  if (c < a || !std::isfinite(c)) return std::nullopt;
  return HyperbolaAxes{a, std::sqrt(c - a) * std::sqrt(c + a), c};
}

double rimHalfHeight(double b) { return b * std::sqrt(15.0); }

Variant toxoimitonoSahl(const Variant& s) { return Atn(s / Sqr(1 - s * s)); }

Variant apostasiSahl(const Variant& x1, const Variant& y1, const Variant& x2, const Variant& y2) {
  return Sqr((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
}

Variant tomiyperbolis1(const Variant& m, const Variant& q, const Variant& b, const Variant& a) {
  return abscissa(Root::Plus, m, q, b, a);
}

Variant tomiyperbolis2(const Variant& m, const Variant& q, const Variant& b, const Variant& a) {
  return abscissa(Root::Minus, m, q, b, a);
}

}  // namespace lensbench::protosfakos
