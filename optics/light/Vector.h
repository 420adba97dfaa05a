// Plane vector arithmetic in double, on points and directions alike.
#pragma once

#include <cmath>

#include "canvas/Canvas.h"
#include "canvas/RuntimeError.h"

namespace lensbench {

constexpr Point operator+(Point a, Point b) noexcept { return {a.x + b.x, a.y + b.y}; }
constexpr Point operator-(Point a, Point b) noexcept { return {a.x - b.x, a.y - b.y}; }
constexpr Point operator-(Point a) noexcept { return {-a.x, -a.y}; }
constexpr Point operator*(double k, Point a) noexcept { return {k * a.x, k * a.y}; }
constexpr double dot(Point a, Point b) noexcept { return a.x * b.x + a.y * b.y; }
constexpr bool operator==(Point a, Point b) noexcept { return a.x == b.x && a.y == b.y; }
constexpr bool isZero(Point a) noexcept { return a.x == 0.0 && a.y == 0.0; }
// Positive when b lies counter-clockwise of a.
constexpr double cross(Point a, Point b) noexcept { return a.x * b.y - a.y * b.x; }
// The vector turned by a quarter turn counter-clockwise.
constexpr Point turned(Point a) noexcept { return {-a.y, a.x}; }
inline double length(Point a) noexcept { return std::hypot(a.x, a.y); }

// The vector at length 1; the zero vector is Division by zero (11).
inline Point unit(Point a) {
  const double l = length(a);
  if (l == 0.0) throwDivisionByZero();
  return {a.x / l, a.y / l};
}

}  // namespace lensbench
