// The narrow number types of the result records, and pi.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "canvas/RuntimeError.h"

namespace lensbench::poreiaaktinon {

// A truth value of the records: all bits set when true.
using Boolean = std::int16_t;
constexpr Boolean boolean(bool truth) noexcept { return truth ? Boolean{-1} : Boolean{0}; }

inline const double pi = 4.0 * std::atan(1.0);

// A number rounded to Single; one too large for it is Overflow (6). Not inlined: GCC 12 drops the
// rounding of two numbers that it finds side by side on their way back to double.
[[gnu::noinline]] inline float toSingle(double value) {
  if (!(std::fabs(value) <= std::numeric_limits<float>::max())) throwOverflow();
  return static_cast<float>(value);
}

// A number rounded to the nearest 16-bit integer, halves to even; one out of range is Overflow (6).
inline std::int16_t toInteger(double value) {
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<std::int16_t>::min() &&
        whole <= std::numeric_limits<std::int16_t>::max())) {
    throwOverflow();
  }
  return static_cast<std::int16_t>(whole);
}

}  // namespace lensbench::poreiaaktinon
