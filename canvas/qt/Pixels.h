// The pixel values of the drawing surface.
#pragma once

#include <cstdint>

#include <QtGlobal>

#include "canvas/Rgb.h"

namespace lensbench {

using PixelValue = quint32;

constexpr PixelValue opaque(Rgb colour) noexcept {
  return 0xFF000000u | static_cast<PixelValue>(colour.red()) << 16 |
         static_cast<PixelValue>(colour.green()) << 8 | static_cast<PixelValue>(colour.blue());
}

// 32 bits of whole pixels, 32 of fraction.
using Fixed = std::int64_t;
constexpr int whole(Fixed value) noexcept { return static_cast<int>(value >> 32); }

// Rows top to bottom - 1 of a figure with straight borders: the first row has the columns
// whole(left) to whole(right) - 1, and from row to row both borders go on by step.
struct Band {
  int top, bottom;
  Fixed left, right, step;
};

}  // namespace lensbench
