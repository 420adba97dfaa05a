// Bringing the pixels of the drawing surface down to those of the display.
#pragma once

#include <QImage>
#include <QPoint>

#include "canvas/qt/Tiles.h"

namespace lensbench {

// Sets every pixel of target to the mean, rounded to the nearest, of the k x k pixels that stand
// for it; its upper-left pixel is the display's pixel at. The target is 32-bit and must lie within
// the display.
void boxFilter(const Tiles& source, QImage& target, QPoint at, int k);

}  // namespace lensbench
