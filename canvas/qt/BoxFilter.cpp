#include "canvas/qt/BoxFilter.h"

#include <algorithm>

#include "canvas/qt/Pixels.h"

namespace lensbench {
namespace {

constexpr PixelValue evenBytes = 0x00FF00FFu;

// Red and blue are summed together in one word, sixteen bits each; green alone.
void halveRow(const PixelValue* upper, const PixelValue* lower, PixelValue* out, int count) {
  for (int i = 0; i < count; ++i) {
    const PixelValue a = upper[2 * i];
    const PixelValue b = upper[2 * i + 1];
    const PixelValue c = lower[2 * i];
    const PixelValue d = lower[2 * i + 1];
    const PixelValue redBlue =
        (a & evenBytes) + (b & evenBytes) + (c & evenBytes) + (d & evenBytes);
    const PixelValue green =
        ((a >> 8) & 0xFFu) + ((b >> 8) & 0xFFu) + ((c >> 8) & 0xFFu) + ((d >> 8) & 0xFFu);
    out[i] = 0xFF000000u | (((redBlue + 0x00020002u) >> 2) & evenBytes) | ((green + 2) >> 2) << 8;
  }
}

PixelValue mean(const PixelValue* first, std::ptrdiff_t stride, int k) {
  PixelValue red = 0;
  PixelValue green = 0;
  PixelValue blue = 0;
  for (int j = 0; j < k; ++j, first += stride) {
    for (int i = 0; i < k; ++i) {
      red += (first[i] >> 16) & 0xFFu;
      green += (first[i] >> 8) & 0xFFu;
      blue += first[i] & 0xFFu;
    }
  }
  const auto n = static_cast<PixelValue>(k * k);
  return 0xFF000000u | (red + n / 2) / n << 16 | (green + n / 2) / n << 8 | (blue + n / 2) / n;
}

}  // namespace

void boxFilter(const QImage& source, QImage& target, const QRect& area, int k) {
  const QRect inside = area & target.rect();
  const auto sourceRow = [&](int y) {
    return reinterpret_cast<const PixelValue*>(source.constScanLine(y)) + inside.left() * k;
  };
  const std::ptrdiff_t stride =
      source.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(PixelValue));
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    PixelValue* const out = reinterpret_cast<PixelValue*>(target.scanLine(y)) + inside.left();
    const PixelValue* const in = sourceRow(y * k);
    if (k == 2) {
      halveRow(in, in + stride, out, inside.width());
      continue;
    }
    for (int x = 0; x < inside.width(); ++x) out[x] = mean(in + x * k, stride, k);
  }
}

}  // namespace lensbench
