// Pictures of values on the canvas of a screen.
#pragma once

#include <QImage>

namespace lensbench {

// What a value gives there, drawn from nothing. The screen shows its own value again afterwards.
template <class Screen, class Shown>
QImage pictureOf(Screen& screen, const Shown& value) {
  screen.image();
  draw(screen.canvas(), value);
  const QImage picture = screen.canvas().image().copy();
  draw(screen.canvas(), screen.shown());
  return picture;
}

// Whether the image, as anyone reads it, is bit for bit what the screen's value gives.
template <class Screen>
bool showsItsValue(Screen& screen) {
  const QImage seen = screen.image().copy();
  return seen == pictureOf(screen, screen.shown());
}

}  // namespace lensbench
