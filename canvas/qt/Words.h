// Words on the drawing surface.
#pragma once

#include <string_view>

#include <QFont>

#include "canvas/Canvas.h"
#include "canvas/qt/Tiles.h"

namespace lensbench {

// Draws a line of words (UTF-8) with its upper-left corner at a place of the image, blended with
// what is there; the place may lie anywhere. Returns the height of the line in image pixels.
double drawWords(Tiles& tiles, Point corner, std::string_view words, const QFont& face,
                 PixelValue colour);

}  // namespace lensbench
