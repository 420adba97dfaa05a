#include "optics/poreiaaktinon/Bench.h"

#include <algorithm>
#include <cmath>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {
namespace {

// How far from its face a point may be, in radii, and still stand on it.
constexpr double onFace = 0.0005;

}  // namespace

bool hasLens(const Fakos& fakos) {
  const double distance = std::fabs(fakos.xc2 - fakos.xc1);
  const double nested = std::fabs(fakos.R2 - fakos.R1);
  if (fakos.R1 <= 0.0 || fakos.R2 <= 0.0) return false;
  if (distance >= fakos.R1 + fakos.R2 || distance < nested) return false;
  // A circle that touches the other from inside may be lost by a rounding.
  return distance > nested || tomikyklonaxona(fakos.xc1, fakos.xc2, fakos.R1, fakos.R2).found != 0;
}

double leftVertex(const Fakos& fakos) {
  return std::max(fakos.xc2 - fakos.R2, fakos.xc1 - fakos.R1);
}

double rightVertex(const Fakos& fakos) {
  return std::min(fakos.xc1 + fakos.R1, fakos.xc2 + fakos.R2);
}

light::Lens lensOf(const Bench& bench) {
  if (bench.n == 0.0) throwDivisionByZero();
  const auto& [xc1, R1, xc2, R2] = bench.fakos;
  if (!hasLens(bench.fakos)) return {light::Circle{}, light::Circle{}, bench.n};
  return {light::Circle{{xc2, 0.0}, R2}, light::Circle{{xc1, 0.0}, R1}, bench.n};
}

light::Conditions conditionsOf(const Bench& bench, const light::Edges& edges) {
  light::Conditions conditions;
  conditions.onFace = onFace;
  conditions.diafragma = bench.diafragma;
  conditions.end = edges;
  conditions.enteredAtRim = light::Side::Left;
  return conditions;
}

}  // namespace lensbench::poreiaaktinon
