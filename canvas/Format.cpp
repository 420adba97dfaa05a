#include "canvas/Format.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace lensbench {
namespace {

// The shortest decimal form that reads back as the same number, without an exponent: what a person
// would write for it, so that 1.005 is halfway between 1.00 and 1.01 although its double is not.
std::string shortestDecimal(double magnitude) {
  std::array<char, 512> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                 std::chars_format::fixed);
  return {buffer.data(), end.ptr};
}

// Adds one to the last digit of a decimal text, carrying leftwards.
void roundUp(std::string& digits) {
  for (auto i = digits.size(); i-- > 0;) {
    if (digits[i] == '.') continue;
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
}

std::string rounded(double value, std::size_t decimals) {
  std::string digits = shortestDecimal(std::fabs(value));
  if (digits.find('.') == std::string::npos) digits += '.';
  const std::size_t keep = digits.find('.') + 1 + decimals;
  if (digits.size() < keep) digits.append(keep - digits.size(), '0');
  const bool up = digits.size() > keep && digits[keep] >= '5';
  digits.resize(keep);
  if (up) roundUp(digits);
  if (decimals == 0) digits.pop_back();
  const bool zero = digits.find_first_not_of("0.") == std::string::npos;
  return value < 0.0 && !zero ? "-" + digits : digits;
}

// Whether a number that fits no double is too large for one, and not too small: by the place of its
// first digit other than 0.
bool isLarge(std::string_view digits) {
  const auto e = digits.find_first_of("eE");
  const std::string_view mantissa = digits.substr(0, e);
  long long exponent = 0;
  if (e != std::string_view::npos) {
    std::string_view power = digits.substr(e + 1);
    if (power.front() == '+') power.remove_prefix(1);
    const auto read = std::from_chars(power.data(), power.data() + power.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return power.front() != '-';
  }
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long long>(mantissa.find_first_of("123456789"));
  return exponent > first - point;
}

}  // namespace

std::string formatWhole(const Variant& v) { return rounded(v.value(), 0); }

std::string formatHundredths(const Variant& v) { return rounded(v.value(), 2); }

std::string formatDecimals(const Variant& v, int decimals) {
  return rounded(v.value(), static_cast<std::size_t>(std::max(decimals, 0)));
}

std::string formatShort(const Variant& v) {
  std::string digits = formatHundredths(v);
  if (digits.ends_with(".00")) digits.resize(digits.size() - 3);
  return digits;
}

NumberRead readNumber(std::string_view text) {
  using Kind = NumberRead::Kind;
  std::string digits(text);
  std::replace(digits.begin(), digits.end(), ',', '.');
  // The reader takes no plus sign, but words such as "inf"; here it is the other way round.
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.erase(0, 1);
  if (digits.find_first_not_of("0123456789.eE+-") != std::string::npos) return {};

  double value = 0.0;
  const char* end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, value);
  if (read.ptr != end || read.ec == std::errc::invalid_argument) return {};
  if (read.ec == std::errc::result_out_of_range) {
    if (!isLarge(digits)) return {Kind::Number, 0.0};
    const double most = std::numeric_limits<double>::max();
    return {Kind::TooLarge, digits.starts_with('-') ? -most : most};
  }
  return {Kind::Number, value};
}

std::optional<double> numberFromText(std::string_view text) {
  const NumberRead read = readNumber(text);
  if (read.kind == NumberRead::Kind::TooLarge) throwOverflow();
  return read.kind == NumberRead::Kind::Number ? std::optional(read.value) : std::nullopt;
}

}  // namespace lensbench
