// A view of the pixels of a 32-bit image, written directly.
#pragma once

#include <algorithm>
#include <cstddef>

#include <QImage>

#include "canvas/Rgb.h"

namespace lensbench {

using PixelValue = quint32;

constexpr PixelValue opaque(Rgb colour) noexcept {
  return 0xFF000000u | static_cast<PixelValue>(colour.red()) << 16 |
         static_cast<PixelValue>(colour.green()) << 8 | static_cast<PixelValue>(colour.blue());
}

// Valid only until the image is copied, resized or destroyed: take a new view for each operation.
struct Pixels {
  explicit Pixels(QImage& image)
      : first(reinterpret_cast<PixelValue*>(image.bits())),
        stride(image.bytesPerLine() / static_cast<qsizetype>(sizeof(PixelValue))),
        width(image.width()),
        height(image.height()) {}

  PixelValue* row(int y) const noexcept { return first + stride * y; }

  // Paints columns from to (until - 1) of a row of the image, as far as they lie in it.
  void fill(int y, int from, int until, PixelValue colour) const noexcept {
    PixelValue* const line = row(y);
    std::fill(line + std::max(from, 0), line + std::max(std::min(until, width), std::max(from, 0)),
              colour);
  }

  PixelValue* first;
  std::ptrdiff_t stride;
  int width;
  int height;
};

}  // namespace lensbench
