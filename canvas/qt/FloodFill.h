// Filling an area of the drawing surface up to a border colour.
#pragma once

#include "canvas/qt/Tiles.h"

namespace lensbench {

// Paints the 4-connected area of pixels that are not of the border colour around (x, y). False when
// the start lies outside or on the border.
bool floodFill(Tiles& tiles, int x, int y, PixelValue border, PixelValue fill);

}  // namespace lensbench
