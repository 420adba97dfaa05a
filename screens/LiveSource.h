// A fan that follows the mouse after the press that sent it: what both screens with fans need.
#pragma once

#include "canvas/qt/Form.h"

namespace lensbench {

// Whether the pointer has gone farther than the desktop's drag distance; user units.
bool hasDragged(const Form& form, Point from, Point to);

// Whether a press at p would be one on the picture: inside the drawing area and on no control.
bool isOnPicture(const Form& form, Point p);

// The press that sent a fan, until its release.
struct LiveSource {
  Point pressed;       // user units
  bool moved = false;  // farther than a click may

  // Whether the fan goes with the pointer that is at p now.
  bool goesTo(const Form& form, Point p) {
    moved = moved || hasDragged(form, pressed, p);
    return moved && isOnPicture(form, p);
  }
};

}  // namespace lensbench
