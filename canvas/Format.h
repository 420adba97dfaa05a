// Numbers as the screens show them, and texts as numbers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "canvas/Variant.h"

namespace lensbench {

// "0": a whole number, halves rounded away from zero, "-0" shown as "0".
std::string formatWhole(const Variant& v);

// "0.00": two decimals, halves of the shortest decimal form rounded away from zero, always with a
// point whatever the locale.
std::string formatHundredths(const Variant& v);

// The same with so many decimals.
std::string formatDecimals(const Variant& v, int decimals);

// A whole number as such, and others with two decimals.
std::string formatShort(const Variant& v);

// What a text is when it is read as a number, with a point or a comma.
struct NumberRead {
  enum class Kind { None, Number, TooLarge };  // None: no number, as the empty text is
  Kind kind = Kind::None;
  double value = 0.0;  // of one too large: the largest number there is, with its sign
};
NumberRead readNumber(std::string_view text);

// The number that a text is; nothing when it is none. Too large is Overflow (6).
std::optional<double> numberFromText(std::string_view text);

}  // namespace lensbench
