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

// A text as a number, with a point or a comma; nothing when it is none, as the empty text is. Too
// large is Overflow (6).
std::optional<double> numberFromText(std::string_view text);

}  // namespace lensbench
