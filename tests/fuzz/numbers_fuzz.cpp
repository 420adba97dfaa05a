// The number reader: any text is a finite number, no number, or the one error that it names.
#include <string_view>

#include "canvas/Format.h"
#include "canvas/RuntimeError.h"
#include "tests/fuzz/Input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lensbench;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  try {
    const auto value = numberFromText(text);
    if (!value) return 0;
    fuzz::require(std::isfinite(*value), "a number is finite");
    const auto again = numberFromText(formatHundredths(*value));
    fuzz::require(again && std::fabs(*again - *value) <= 0.005 + 1e-12 * std::fabs(*value),
                  "a number that is shown is read again");
  } catch (const RuntimeError& error) {
    fuzz::require(error.number() == 6, "only Overflow comes out");
  }
  return 0;
}
