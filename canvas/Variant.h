// A number that may be Empty, and arithmetic that raises an error instead of making infinities.
#pragma once

#include <cmath>
#include <type_traits>

#include "canvas/RuntimeError.h"

namespace lensbench {

// Empty tells "no solution" (an arc sine outside -1..1, an infinite focal length). In arithmetic
// and comparisons Empty counts as 0; isEmpty() keeps it distinguishable from 0.
class Variant {
 public:
  constexpr Variant() noexcept = default;
  // Implicit on purpose: every number is a Variant. A number that is not finite is Overflow (6).
  Variant(double value) : value_(value), empty_(false) {  // NOLINT(google-explicit-constructor)
    if (!std::isfinite(value)) throwOverflow();
  }
  constexpr Variant(int value) noexcept  // NOLINT(google-explicit-constructor)
      : value_(value), empty_(false) {}

  constexpr bool isEmpty() const noexcept { return empty_; }
  // The number; 0 when Empty.
  constexpr double value() const noexcept { return value_; }

 private:
  double value_ = 0.0;
  bool empty_ = true;
};
static_assert(std::is_trivially_copyable_v<Variant>);

inline Variant operator+(const Variant& a, const Variant& b) { return {a.value() + b.value()}; }
inline Variant operator-(const Variant& a, const Variant& b) { return {a.value() - b.value()}; }
inline Variant operator*(const Variant& a, const Variant& b) { return {a.value() * b.value()}; }
inline Variant operator-(const Variant& a) { return {-a.value()}; }
// A zero divisor is Division by zero (11), 0/0 included.
inline Variant operator/(const Variant& a, const Variant& b) {
  if (b.value() == 0.0) throwDivisionByZero();
  return {a.value() / b.value()};
}

inline bool operator==(const Variant& a, const Variant& b) { return a.value() == b.value(); }
inline bool operator!=(const Variant& a, const Variant& b) { return a.value() != b.value(); }
inline bool operator<(const Variant& a, const Variant& b) { return a.value() < b.value(); }
inline bool operator<=(const Variant& a, const Variant& b) { return a.value() <= b.value(); }
inline bool operator>(const Variant& a, const Variant& b) { return a.value() > b.value(); }
inline bool operator>=(const Variant& a, const Variant& b) { return a.value() >= b.value(); }

// Square root; a negative number is Invalid argument (5).
inline Variant Sqr(const Variant& v) {
  if (v.value() < 0.0) throwInvalidArgument();
  return {std::sqrt(v.value())};
}
inline Variant Atn(const Variant& v) { return {std::atan(v.value())}; }
inline Variant Sin(const Variant& v) { return {std::sin(v.value())}; }
inline Variant Cos(const Variant& v) { return {std::cos(v.value())}; }
inline Variant Tan(const Variant& v) { return {std::tan(v.value())}; }
inline Variant Abs(const Variant& v) { return {std::fabs(v.value())}; }
// The largest whole number that is not greater.
inline Variant Int(const Variant& v) { return {std::floor(v.value())}; }
// 1, 0 or -1.
inline Variant Sgn(const Variant& v) { return {(v.value() > 0.0) - (v.value() < 0.0)}; }

}  // namespace lensbench
