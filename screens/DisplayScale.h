// The scale of the screens that fill the display, and where the windows of the others open.
#pragma once

#include "canvas/qt/Form.h"

namespace lensbench {

// Puts the origin in the middle of the drawing surface and makes half its width and half its height
// 600 units together; a unit is as long in x as in y, and y grows upward.
void scaleToClientArea(Form& form);

// The side of the square window of the Ibn Sahl screen: two thirds of the display's height, and
// never wider than the display; twips.
double squareSide();

// Puts a form that nobody has moved beside a window of this side at the upper left of the display,
// or else below it; where there is no room for either it opens where the platform puts it.
void placeBeside(Form& form, double side);

}  // namespace lensbench
