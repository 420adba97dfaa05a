// The picture of a drawing area, to be taken along: as pixels, as vectors, on paper.
#pragma once

#include <functional>

#include <QByteArray>
#include <QImage>

class QPagedPaintDevice;

namespace lensbench {

class Canvas;
class Form;

// What a form shows, with the overlays that belong to it and without controls; draw draws all of it
// but the overlays on any canvas that has the scale and the font of the form's own.
struct TakenPicture {
  Form& form;
  std::function<void(Canvas&)> draw;
};

// Pixel by pixel as the display shows it.
QImage pixelsOf(const TakenPicture& picture);

// Files, each as large as the picture is at 96 logical pixels to the inch.
QByteArray png(const TakenPicture& picture);
QByteArray svg(const TakenPicture& picture);
QByteArray pdf(const TakenPicture& picture);

// In the middle of one page, as large as its margins allow. False when nothing can be printed.
bool printOn(QPagedPaintDevice& paper, const TakenPicture& picture);

}  // namespace lensbench
