// Numbers as the screens show them, and texts as numbers.
#pragma once

#include <string>
#include <string_view>

#include "canvas/Variant.h"

namespace lensbench {

// "0": a whole number, halves rounded away from zero, "-0" shown as "0".
std::string formatWhole(const Variant& v);

// "0.00": two decimals, halves of the shortest decimal form rounded away from zero, always with a
// point whatever the locale.
std::string formatHundredths(const Variant& v);

// A text as a number: blanks around it are allowed, and a point, or decimalSign in its place.
// Anything else, the empty text included, is Type mismatch (13); too large is Overflow (6).
double numberFromText(std::string_view text, char decimalSign = '.');

}  // namespace lensbench
