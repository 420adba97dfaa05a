// The scale of the screens that fill the display.
#pragma once

#include "canvas/qt/Form.h"

namespace lensbench {

// Puts the origin in the middle of the drawing surface and makes half its width and half its height
// 600 units together; a unit is as long in x as in y, and y grows upward.
void scaleToClientArea(Form& form);

}  // namespace lensbench
