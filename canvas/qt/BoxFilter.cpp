#include "canvas/qt/BoxFilter.h"

#include <algorithm>

#include "canvas/qt/Pixels.h"

namespace lensbench {
namespace {

constexpr Pixel evenBytes = 0x00FF00FFu;

// Red and blue are summed together in one word, sixteen bits each; green alone.
void halveRow(const Pixel* upper, const Pixel* lower, Pixel* out, int count) {
  for (int i = 0; i < count; ++i) {
    const Pixel a = upper[2 * i];
    const Pixel b = upper[2 * i + 1];
    const Pixel c = lower[2 * i];
    const Pixel d = lower[2 * i + 1];
    const Pixel redBlue = (a & evenBytes) + (b & evenBytes) + (c & evenBytes) + (d & evenBytes);
    const Pixel green =
        ((a >> 8) & 0xFFu) + ((b >> 8) & 0xFFu) + ((c >> 8) & 0xFFu) + ((d >> 8) & 0xFFu);
    out[i] = 0xFF000000u | (((redBlue + 0x00020002u) >> 2) & evenBytes) | ((green + 2) >> 2) << 8;
  }
}

Pixel mean(const Pixel* first, std::ptrdiff_t stride, int k) {
  Pixel red = 0;
  Pixel green = 0;
  Pixel blue = 0;
  for (int j = 0; j < k; ++j, first += stride) {
    for (int i = 0; i < k; ++i) {
      red += (first[i] >> 16) & 0xFFu;
      green += (first[i] >> 8) & 0xFFu;
      blue += first[i] & 0xFFu;
    }
  }
  const auto n = static_cast<Pixel>(k * k);
  return 0xFF000000u | (red + n / 2) / n << 16 | (green + n / 2) / n << 8 | (blue + n / 2) / n;
}

}  // namespace

void boxFilter(const QImage& source, QImage& target, const QRect& area, int k) {
  const QRect inside = area & target.rect();
  const auto sourceRow = [&](int y) {
    return reinterpret_cast<const Pixel*>(source.constScanLine(y)) + inside.left() * k;
  };
  const std::ptrdiff_t stride = source.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(Pixel));
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    Pixel* const out = reinterpret_cast<Pixel*>(target.scanLine(y)) + inside.left();
    const Pixel* const in = sourceRow(y * k);
    if (k == 2) {
      halveRow(in, in + stride, out, inside.width());
      continue;
    }
    for (int x = 0; x < inside.width(); ++x) out[x] = mean(in + x * k, stride, k);
  }
}

}  // namespace lensbench
