// Rays close to the axis, by the matrices of exact optics: another way to foci and images, written
// for the tests alone.
#pragma once

#include "canvas/Canvas.h"

namespace lensbench::paraxial {

// On heights and angles times index: (A B; C D).
struct Matrix {
  double A = 1.0, B = 0.0, C = 0.0, D = 1.0;
};
constexpr Matrix operator*(const Matrix& m, const Matrix& k) {
  return {m.A * k.A + m.B * k.C, m.A * k.B + m.B * k.D, m.C * k.A + m.D * k.C,
          m.C * k.B + m.D * k.D};
}
// Over a distance in a medium, and through a face by its power, (n - 1) over its radius.
constexpr Matrix over(double distance, double n = 1.0) { return {1.0, distance / n, 0.0, 1.0}; }
constexpr Matrix through(double power) { return {1.0, 0.0, -power, 1.0}; }

// A lens in air, from vertex to vertex, by the powers of its faces in the order in which light
// meets them.
constexpr Matrix lens(double first, double thickness, double n, double second) {
  return through(second) * over(thickness, n) * through(first);
}

// Light that has come from a point so far before a system, and so high: how far behind the system
// it meets, and how high.
struct Meeting {
  double behind;
  double height;
};
constexpr Meeting image(const Matrix& system, double before, double height) {
  const Matrix m = system * over(before);
  const double behind = -m.B / m.D;
  return {behind, (m.A + behind * m.C) * height};
}

}  // namespace lensbench::paraxial
