#include "canvas/qt/DrawingArea.h"

#include <cmath>

#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/Overlay.h"

namespace lensbench {

DrawingArea::DrawingArea(QWidget* parent)
    : QWidget(parent), canvas_(size(), devicePixelRatioF(), oversamplingFor(devicePixelRatioF())) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  connect(&canvas_, &RasterCanvas::pictureChanged, this, &DrawingArea::showSoon);
  connect(&canvas_, &RasterCanvas::scaleReplaced, this, &DrawingArea::keepOverlaysInPlace);
  showSoon();
}

void DrawingArea::fitCanvas() {
  if (devicePixelRatioF() != canvas_.devicePixelRatio()) {
    canvas_.setOversampling(oversamplingFor(devicePixelRatioF()));
  }
  const QSize old = canvas_.size();
  canvas_.resize(size(), devicePixelRatioF());
  if (canvas_.size() != old) emit canvasResized();
}

void DrawingArea::releaseSizeSoon() {
  constexpr int moment = 400;  // ms, several times what a window manager needs
  QTimer::singleShot(moment, this, [this] {
    if (!isVisible()) return;
    sizeHeld_ = false;
    fitCanvas();
  });
}

void DrawingArea::resizeEvent(QResizeEvent*) {
  if (!sizeHeld_) fitCanvas();
}

// What one handler draws is shown together, when it has returned.
void DrawingArea::showSoon() {
  if (showPending_) return;
  showPending_ = true;
  QMetaObject::invokeMethod(this, &DrawingArea::refresh, Qt::QueuedConnection);
}

void DrawingArea::refresh() {
  showPending_ = false;
  const QRect dirty = canvas_.takeDirty();
  if (dirty.isEmpty()) return;
  const int k = canvas_.oversampling();
  const QRect device(QPoint(dirty.left() / k, dirty.top() / k),
                     QPoint(dirty.right() / k, dirty.bottom() / k));
  if (k > 1) {
    const QSize size = canvas_.image().size() / k;
    if (display_.size() != size) display_ = QImage(size, QImage::Format_RGB32);
    boxFilter(canvas_.image(), display_, device, k);
  } else {
    display_ = {};
  }
  const double ratio = canvas_.devicePixelRatio();
  update(QRectF(device.x() / ratio, device.y() / ratio, device.width() / ratio,
                device.height() / ratio)
             .toAlignedRect());
}

void DrawingArea::paintEvent(QPaintEvent* event) {
  if (canvas_.devicePixelRatio() != devicePixelRatioF()) fitCanvas();
  refresh();
  const QImage& picture = canvas_.oversampling() > 1 ? display_ : canvas_.image();
  const double ratio = canvas_.devicePixelRatio();
  QPainter painter(this);
  for (const QRect& part : event->region()) {
    const QRectF device(part.x() * ratio, part.y() * ratio, part.width() * ratio,
                        part.height() * ratio);
    painter.drawImage(QRectF(part), picture, device);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  // As on the canvas, a point stands in the middle of its pixel.
  painter.translate(0.5, 0.5);
  for (const Overlay* overlay : findChildren<Overlay*>(Qt::FindDirectChildrenOnly)) {
    if (overlay->Visible()) overlay->paint(painter);
  }
}

void DrawingArea::keepOverlaysInPlace(const UserMapping& old) {
  for (Overlay* overlay : findChildren<Overlay*>(Qt::FindDirectChildrenOnly)) {
    overlay->convert(old, canvas_.mapping());
  }
}

}  // namespace lensbench
