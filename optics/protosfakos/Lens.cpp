#include "optics/protosfakos/Lens.h"

#include <cmath>

#include "optics/protosfakos/Hyperbola.h"

namespace lensbench::protosfakos {
namespace {

light::Lens lensWith(double a, double b, double n, const light::Face& right) {
  if (a == 0.0 || n == 0.0) throwDivisionByZero();
  return {light::Hyperbola{a, b, {}}, right, n};
}

}  // namespace

light::Lens planoConvex(double a, double b, double n) {
  return lensWith(a, b, n, light::Plane{rimX(a)});
}

light::Lens biconvex(double a, double b, double n) {
  return lensWith(a, b, n, light::Hyperbola{a, b, rimX(a)});
}

light::Ray rayWithSlope(Point start, double slope, Travel travel) {
  const double run = static_cast<double>(travel) / std::hypot(1.0, slope);
  return {start, {run, run * slope}};
}

light::RayPath trace(const light::Lens& lens, const light::Ray& ray,
                     const std::optional<Diafragma>& diafragma, double phase) {
  const light::Conditions conditions{.onFace = 0.0,
                                     .touching = 1e-9,
                                     .grazing = light::Grazing::Reflected,
                                     .outAsIn = false,
                                     .diafragma = diafragma,
                                     .beforeLens = rimX(std::get<light::Hyperbola>(lens.left).a),
                                     .end = light::Lengths{.missing = 100.0, .emerging = 530.0}};
  return light::trace(lens, ray, conditions, phase);
}

bool emerged(const light::RayPath& path) {
  return path.ending == light::Ending::Open && !path.missed();
}

}  // namespace lensbench::protosfakos
