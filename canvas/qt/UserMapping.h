// User units against logical pixels of the client area.
#pragma once

#include "canvas/Canvas.h"

namespace lensbench {

// The pixel of a user point and back.
struct UserMapping {
  double left, top;         // user point at the upper-left corner
  double xPixels, yPixels;  // pixels per unit, signed

  Point toPixel(Point user) const { return {(user.x - left) * xPixels, (user.y - top) * yPixels}; }
  Point toUser(Point pixel) const { return {left + pixel.x / xPixels, top + pixel.y / yPixels}; }
  friend bool operator==(const UserMapping&, const UserMapping&) = default;
};

inline UserMapping mappingOf(const Canvas& canvas) {
  return {canvas.ScaleLeft(), canvas.ScaleTop(),
          canvas.ScaleX(1.0, ScaleUnit::User, ScaleUnit::Pixel),
          canvas.ScaleY(1.0, ScaleUnit::User, ScaleUnit::Pixel)};
}

}  // namespace lensbench
