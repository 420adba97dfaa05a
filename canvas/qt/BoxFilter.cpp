#include "canvas/qt/BoxFilter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace lensbench {
namespace {

constexpr PixelValue evenBytes = 0x00FF00FFu;

// Red and blue are summed together in one word, sixteen bits each; green alone.
PixelValue meanOfFour(const PixelValue* upper, const PixelValue* lower) {
  const PixelValue redBlue = (upper[0] & evenBytes) + (upper[1] & evenBytes) +
                             (lower[0] & evenBytes) + (lower[1] & evenBytes);
  const PixelValue green = (upper[0] >> 8 & 0xFFu) + (upper[1] >> 8 & 0xFFu) +
                           (lower[0] >> 8 & 0xFFu) + (lower[1] >> 8 & 0xFFu);
  return 0xFF000000u | ((redBlue + 0x00020002u) >> 2 & evenBytes) | (green + 2) >> 2 << 8;
}

// As many pixels as a tile stands for: with the number known and no alias to fear the compiler
// computes four at a time.
void halveTileRow(const PixelValue* upper, const PixelValue* lower, PixelValue* out) {
  // All are set below.
  std::array<PixelValue, Tiles::side / 2> means;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  for (std::size_t i = 0; i < means.size(); ++i) {
    means[i] = meanOfFour(upper + 2 * i, lower + 2 * i);
  }
  std::memcpy(out, means.data(), sizeof means);
}

PixelValue mean(const Tiles& source, int left, int top, int k) {
  PixelValue red = 0;
  PixelValue green = 0;
  PixelValue blue = 0;
  for (int y = top; y < top + k; ++y) {
    for (int x = left; x < left + k; ++x) {
      const PixelValue pixel = source.at(x, y);
      red += (pixel >> 16) & 0xFFu;
      green += (pixel >> 8) & 0xFFu;
      blue += pixel & 0xFFu;
    }
  }
  const auto n = static_cast<PixelValue>(k * k);
  return 0xFF000000u | (red + n / 2) / n << 16 | (green + n / 2) / n << 8 | (blue + n / 2) / n;
}

// A part of the display that one tile stands for; k is 1 or 2, so that no pixel lies across the
// border of tiles.
void shrinkTile(const Tiles& source, PixelValue* out, std::ptrdiff_t stride, const QRect& part,
                int k) {
  const int x = part.left() * k;
  int y = part.top() * k;
  const int column = Tiles::tileOf(x);
  const PixelValue ground = source.ground(column, Tiles::tileOf(y));
  const Tiles::Rows averaged = (Tiles::Rows{1} << k) - 1;
  Tiles::Rows drawn = source.drawnRows(column, Tiles::tileOf(y)) >> Tiles::inTile(y);
  const auto count = static_cast<std::size_t>(part.width());
  for (; y < (part.bottom() + 1) * k; y += k, drawn >>= k, out += stride) {
    if ((drawn & averaged) == 0) {
      std::fill_n(out, count, ground);
      continue;
    }
    const PixelValue* const upper = source.row(column, y) + Tiles::inTile(x);
    if (k == 1) {
      std::memcpy(out, upper, count * sizeof(PixelValue));
      continue;
    }
    const PixelValue* const lower = source.row(column, y + 1) + Tiles::inTile(x);
    if (count == Tiles::side / 2) {
      halveTileRow(upper, lower, out);
    } else {
      for (std::size_t i = 0; i < count; ++i) out[i] = meanOfFour(upper + 2 * i, lower + 2 * i);
    }
  }
}

}  // namespace

void boxFilter(const Tiles& source, QImage& target, QPoint at, int k) {
  const QRect area(at, target.size());
  auto* const first = reinterpret_cast<PixelValue*>(target.bits());
  const auto stride = target.bytesPerLine() / static_cast<qsizetype>(sizeof(PixelValue));
  if (k > 2) {
    for (int y = 0; y < area.height(); ++y) {
      for (int x = 0; x < area.width(); ++x) {
        first[stride * y + x] = mean(source, (at.x() + x) * k, (at.y() + y) * k, k);
      }
    }
    return;
  }
  const int step = Tiles::side / k;
  for (int top = at.y() / step * step; top <= area.bottom(); top += step) {
    for (int left = at.x() / step * step; left <= area.right(); left += step) {
      const QRect part = QRect(left, top, step, step) & area;
      shrinkTile(source, first + stride * (part.top() - at.y()) + (part.left() - at.x()), stride,
                 part, k);
    }
  }
}

}  // namespace lensbench
