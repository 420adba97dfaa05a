#include "canvas/qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

// Share of white light that a colour gives back, as the eye weighs it: 0 black, 1 white.
double luminance(const QColor& colour) {
  const auto linear = [](double v) {
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor warningOn(const QColor& background) {
  const QColor dark(168, 52, 0);
  const QColor light(255, 183, 77);
  return contrast(dark, background) >= contrast(light, background) ? dark : light;
}

}  // namespace lensbench
