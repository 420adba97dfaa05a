#include "canvas/qt/DrawingArea.h"

#include <algorithm>

#include <QAccessible>
#include <QBackingStore>
#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTimerEvent>
#include <QWindow>

#include "canvas/qt/NewImage.h"
#include "canvas/qt/Overlay.h"
#include "canvas/qt/PainterCanvas.h"

namespace lensbench {
namespace {

// Milliseconds.
constexpr int tellingPause = 500;
constexpr int givingBackPause = 1000;

const auto frameEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

}  // namespace

DrawingArea::DrawingArea(QWidget* parent)
    : QWidget(parent), canvas_(size(), devicePixelRatioF(), oversamplingFor(devicePixelRatioF())) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  connect(&canvas_, &RasterCanvas::pictureChanged, this, &DrawingArea::wantFrame);
  connect(&canvas_, &RasterCanvas::pictureLost, this, &DrawingArea::stale);
  connect(&canvas_, &RasterCanvas::scaleReplaced, this, &DrawingArea::keepOverlaysInPlace);
  wantFrame();
}

void DrawingArea::fitCanvas() {
  if (devicePixelRatioF() != canvas_.devicePixelRatio()) {
    canvas_.setOversampling(oversamplingFor(devicePixelRatioF()));
  }
  const QSize size = canvas_.size();
  const double ratio = canvas_.devicePixelRatio();
  // What is drawn anew need not be brought over.
  if (draw_ && this->size() != size) canvas_.giveUpPixels();
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
  if (isInSight()) frame({});
  return true;
}

bool DrawingArea::isInSight() const {
  const QWindow* const handle = window()->windowHandle();
  return isVisible() && !window()->isMinimized() && handle != nullptr && handle->isExposed();
}

// Told before the window is, which then paints what is asked for here.
bool DrawingArea::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose || event->type() == QEvent::WindowStateChange) {
    const bool before = std::exchange(wasInSight_, isInSight());
    if (wasInSight_ && !before) update();
    if (before && !wasInSight_) giveUpPixels();
  }
  return QWidget::eventFilter(watched, event);
}

// Also when a minimised window is restored, which need not be painted then.
void DrawingArea::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  window()->installEventFilter(this);
  window()->windowHandle()->installEventFilter(this);
  update();
}

void DrawingArea::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  giveUpPixels();
}

void DrawingArea::giveUpPixels() {
  strip_ = {};
  beforeGivingBack_.stop();
  // Without anyone who draws it anew a picture is kept.
  if (draw_) canvas_.giveUpPixels();
  // The toolkit keeps a picture of the whole window; when a hidden or minimised one comes back it
  // brings one of another size to that of the window and paints all of it. It does not for a window
  // that was on another desktop.
  if (isVisible() && !window()->isMinimized()) return;
  const QWindow* const handle = window()->windowHandle();
  QBackingStore* const store = window()->backingStore();
  if (store != nullptr && handle != nullptr && handle->handle() != nullptr) store->resize({1, 1});
}

void DrawingArea::timerEvent(QTimerEvent* event) {
  if (event->timerId() == beforeTelling_.timerId()) {
    beforeTelling_.stop();
    tellWords();
  } else if (event->timerId() == beforeGivingBack_.timerId()) {
    beforeGivingBack_.stop();
    canvas_.giveBackSpare();
  } else {
    QWidget::timerEvent(event);
  }
}

void DrawingArea::tellWords() {
  if (!QAccessible::isActive() || !isVisible()) return;
  const QString now = words();
  if (now == toldWords_) return;
  toldWords_ = now;
  QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
}

void DrawingArea::frame(const QRegion& painted) {
  bringUpToDate();
  if (!beforeGivingBack_.isActive()) beforeGivingBack_.start(givingBackPause, this);
  const double ratio = canvas_.devicePixelRatio();
  QRegion logical;
  for (const QRect& part : canvas_.takeDirty()) {
    logical +=
        QRectF(part.x() / ratio, part.y() / ratio, part.width() / ratio, part.height() / ratio)
            .toAlignedRect();
  }
  const QRegion left = logical - painted;
  if (!left.isEmpty()) update(left - covered());
}

// A control that paints all of itself hides the picture, and would be painted anew for nothing.
QRegion DrawingArea::covered() const {
  QRegion region;
  for (const QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (child->isVisible() && child->testAttribute(Qt::WA_OpaquePaintEvent)) {
      region += child->geometry();
    }
  }
  return region;
}

void DrawingArea::paintEvent(QPaintEvent* event) {
  // Not every display keeps the toolkit from painting a minimised window.
  if (window()->isMinimized()) return;
  if (canvas_.devicePixelRatio() != devicePixelRatioF()) fitCanvas();
  if (inWords_ && QAccessible::isActive() && !beforeTelling_.isActive()) {
    beforeTelling_.start(tellingPause, this);
  }
  frame(event->region());
  QPainter painter(this);
  for (const QRect& part : event->region()) paintPicture(painter, part);
  paintOverlays(painter, Which::All);
}

QImage DrawingArea::picture() {
  bringUpToDate();
  QImage picture = newImage(canvas_.displaySize());
  picture.setDevicePixelRatio(canvas_.devicePixelRatio());
  QPainter painter(&picture);
  paintPicture(painter, QRect(QPoint(0, 0), canvas_.size()));
  paintOverlays(painter, Which::InPicture);
  return picture;
}

void DrawingArea::paintVectors(QPainter& painter, const QRectF& target) const {
  const QSizeF size = canvas_.size();
  {
    PainterCanvas vectors(painter, target, size);
    if (canvas_.hasUserScale()) {
      vectors.Scale(canvas_.ScaleLeft(), canvas_.ScaleTop(),
                    canvas_.ScaleLeft() + canvas_.ScaleWidth(),
                    canvas_.ScaleTop() + canvas_.ScaleHeight());
    }
    vectors.BackColor(canvas_.BackColor());
    vectors.ForeColor(canvas_.ForeColor());
    vectors.FontName(canvas_.FontName());
    vectors.FontSize(canvas_.FontSize());
    vectors.Cls();
    if (drawAnywhere_) drawAnywhere_(vectors);
  }
  painter.save();
  painter.translate(target.topLeft());
  painter.scale(target.width() / size.width(), target.height() / size.height());
  painter.setClipRect(QRectF(QPointF(0.0, 0.0), size), Qt::IntersectClip);
  paintOverlays(painter, Which::InPicture);
  painter.restore();
}

void DrawingArea::paintOverlays(QPainter& painter, Which which) const {
  painter.setRenderHint(QPainter::Antialiasing);
  // As on the canvas, a point stands in the middle of its pixel.
  painter.translate(0.5, 0.5);
  for (const Overlay* overlay : findChildren<Overlay*>(Qt::FindDirectChildrenOnly)) {
    if (overlay->Visible() && (which == Which::All || overlay->InPicture())) {
      overlay->paint(painter);
    }
  }
  painter.translate(-0.5, -0.5);
}

// Pixel by pixel of the display, whatever its ratio.
void DrawingArea::paintPicture(QPainter& painter, const QRect& part) {
  const double ratio = canvas_.devicePixelRatio();
  const QRect device =
      QRectF(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio)
          .toAlignedRect() &
      QRect(QPoint(0, 0), canvas_.displaySize());
  // As much as stays in a cache.
  constexpr int stripHeight = 32;
  painter.save();
  painter.scale(1.0 / ratio, 1.0 / ratio);
  for (int y = device.top(); y <= device.bottom(); y += stripHeight) {
    const QSize size(device.width(), std::min(stripHeight, device.bottom() + 1 - y));
    if (strip_.size() != size) strip_ = newImage(size);
    canvas_.showIn(strip_, {device.left(), y});
    painter.drawImage(device.left(), y, strip_);
  }
  painter.restore();
}

void DrawingArea::keepOverlaysInPlace(const UserMapping& old) {
  for (Overlay* overlay : findChildren<Overlay*>(Qt::FindDirectChildrenOnly)) {
    overlay->convert(old, canvas_.mapping());
  }
}

}  // namespace lensbench
