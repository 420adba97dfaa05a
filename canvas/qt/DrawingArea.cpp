#include "canvas/qt/DrawingArea.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/Overlay.h"

namespace lensbench {
namespace {

const auto frameEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

DrawingArea::DrawingArea(QWidget* parent)
    : QWidget(parent), canvas_(size(), devicePixelRatioF(), oversamplingFor(devicePixelRatioF())) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  connect(&canvas_, &RasterCanvas::pictureChanged, this, &DrawingArea::wantFrame);
  connect(&canvas_, &RasterCanvas::scaleReplaced, this, &DrawingArea::keepOverlaysInPlace);
  wantFrame();
}

void DrawingArea::fitCanvas() {
  if (devicePixelRatioF() != canvas_.devicePixelRatio()) {
    canvas_.setOversampling(oversamplingFor(devicePixelRatioF()));
  }
  const QSize size = canvas_.size();
  const double ratio = canvas_.devicePixelRatio();
  canvas_.resize(this->size(), devicePixelRatioF());
  if (canvas_.size() != size || canvas_.devicePixelRatio() != ratio) emit canvasResized();
}

void DrawingArea::stale() {
  stale_ = true;
  wantFrame();
}

const QImage& DrawingArea::image() {
  bringUpToDate();
  return canvas_.image();
}

void DrawingArea::bringUpToDate() {
  if (!stale_ || drawing_ || !draw_) return;
  const QScopedValueRollback busy(drawing_, true);
  // Until it has been drawn to its end it stays stale.
  QScopedValueRollback drawn(stale_, false);
  draw_();
  drawn.commit();
}

// Behind all events that have been posted, so that what they change is drawn and shown together.
void DrawingArea::wantFrame() {
  if (frameWanted_) return;
  frameWanted_ = true;
  QCoreApplication::postEvent(this, new QEvent(frameEvent), Qt::LowEventPriority);
}

bool DrawingArea::event(QEvent* event) {
  if (event->type() != frameEvent) return QWidget::event(event);
  frameWanted_ = false;
  // What nobody can see is drawn when it is seen again.
  if (isVisible() && !window()->isMinimized()) {
    frame();
  } else {
    update();
  }
  return true;
}

void DrawingArea::frame() {
  bringUpToDate();
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
  frame();
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
