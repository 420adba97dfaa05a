// Plane vector arithmetic in double, on points and directions alike.
#pragma once

#include <cmath>

#include "canvas/Canvas.h"

namespace lensbench::protosfakos {

constexpr Point operator+(Point a, Point b) noexcept { return {a.x + b.x, a.y + b.y}; }
constexpr Point operator-(Point a, Point b) noexcept { return {a.x - b.x, a.y - b.y}; }
constexpr Point operator-(Point a) noexcept { return {-a.x, -a.y}; }
constexpr Point operator*(double k, Point a) noexcept { return {k * a.x, k * a.y}; }
constexpr double dot(Point a, Point b) noexcept { return a.x * b.x + a.y * b.y; }
// Positive when b lies counter-clockwise of a.
constexpr double cross(Point a, Point b) noexcept { return a.x * b.y - a.y * b.x; }
inline double length(Point a) noexcept { return std::hypot(a.x, a.y); }

}  // namespace lensbench::protosfakos
