// The picture of a form, to be taken along: as pixels, as vectors, on paper. It is what the form
// shows, with the overlays that belong to it and without controls.
#pragma once

#include <QByteArray>
#include <QImage>

class QPagedPaintDevice;

namespace lensbench {

class Form;

// Pixel by pixel as the display shows it.
QImage pixelsOf(Form& form);

// Files, each as large as the picture is at 96 logical pixels to the inch.
QByteArray png(Form& form);
QByteArray svg(Form& form);
QByteArray pdf(Form& form);

// In the middle of one page, as large as its margins allow. False when nothing can be printed.
bool printOn(QPagedPaintDevice& paper, Form& form);

}  // namespace lensbench
