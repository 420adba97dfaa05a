// Pictures of values, as the canvas of a screen has to show them.
#pragma once

#include <memory>

#include <QImage>

#include "canvas/qt/RasterCanvas.h"

namespace lensbench {

// An empty canvas on which everything is drawn as it is there. Exact where the scale has its origin
// within the area, as it has on every screen.
inline std::unique_ptr<RasterCanvas> canvasLike(const RasterCanvas& like) {
  auto canvas =
      std::make_unique<RasterCanvas>(like.size(), like.devicePixelRatio(), like.oversampling());
  canvas->BackColor(like.BackColor());
  canvas->ForeColor(like.ForeColor());
  canvas->FontName(like.FontName());
  canvas->FontSize(like.FontSize());
  if (like.hasUserScale()) {
    canvas->Scale(like.ScaleLeft(), like.ScaleTop(), like.ScaleLeft() + like.ScaleWidth(),
                  like.ScaleTop() + like.ScaleHeight());
  }
  return canvas;
}

// What a value gives on such a canvas, drawn from nothing; the screen's own stays as it is, with
// all that it has gone through.
template <class Screen, class Shown>
QImage pictureOf(const Screen& screen, const Shown& value) {
  const auto canvas = canvasLike(screen.canvas());
  draw(*canvas, value);
  return canvas->image();
}

// The pixels of the display that a canvas gives.
inline QImage displayedBy(const RasterCanvas& canvas) {
  QImage display(canvas.displaySize(), QImage::Format_RGB32);
  canvas.showIn(display, {0, 0});
  return display;
}

// Whether the image, as anyone reads it, is bit for bit what the screen's value gives.
template <class Screen>
bool showsItsValue(Screen& screen) {
  const QImage& seen = screen.image();
  const auto canvas = canvasLike(screen.canvas());
  draw(*canvas, screen.shown());
  return seen == canvas->image() && displayedBy(screen.canvas()) == displayedBy(*canvas);
}

}  // namespace lensbench
