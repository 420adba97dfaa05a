// Filling an area of an image up to a border colour.
#pragma once

#include <QRect>

#include "canvas/qt/Pixels.h"

namespace lensbench {

// Paints the 4-connected area of pixels that are not of the border colour around (x, y), and
// returns its bounding rectangle: empty when the start lies outside the image or on the border.
QRect floodFill(const Pixels& pixels, int x, int y, PixelValue border, PixelValue fill);

}  // namespace lensbench
