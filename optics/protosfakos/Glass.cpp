#include "optics/protosfakos/Glass.h"

#include <algorithm>

namespace lensbench::protosfakos {
namespace {

Glass glassWith(const Variant& a, const Variant& b, const Variant& n, const Face& right) {
  if (a == 0 || n == 0) throwDivisionByZero();
  return {a.value(), b.value(), n.value(), {HyperbolicFace{a.value(), b.value(), false}, right}};
}

}  // namespace

Glass planoConvex(const Variant& a, const Variant& b, const Variant& n) {
  return glassWith(a, b, n, PlaneFace{4.0 * a.value()});
}

Glass biconvex(const Variant& a, const Variant& b, const Variant& n) {
  return glassWith(a, b, n, HyperbolicFace{a.value(), b.value(), true});
}

std::optional<GlassChord> throughGlass(const Glass& glass, const Ray& ray) {
  const auto left = glassSide(glass.faces[0], ray);
  const auto right = glassSide(glass.faces[1], ray);
  if (!left || !right) return std::nullopt;
  const GlassChord both{{std::max(left->from, right->from), std::min(left->to, right->to)},
                        left->from > right->from ? 0 : 1,
                        left->to <= right->to ? 0 : 1};
  if (!(both.chord.from <= both.chord.to)) return std::nullopt;
  return both;
}

}  // namespace lensbench::protosfakos
