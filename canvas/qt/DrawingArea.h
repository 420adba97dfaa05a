// The client area of a form: shows the picture, and over it the shapes and lines.
#pragma once

#include <QImage>
#include <QWidget>

#include "canvas/qt/RasterCanvas.h"

namespace lensbench {

class DrawingArea : public QWidget {
  Q_OBJECT

 public:
  explicit DrawingArea(QWidget* parent);

  RasterCanvas& canvas() noexcept { return canvas_; }
  // Gives the canvas the size and the pixel ratio that the widget has.
  void fitCanvas();
  // Between these the canvas does not follow the size of the widget: a maximised window that is
  // hidden and shown anew is small for a while, and that must not cut the picture. The release
  // takes effect a moment later.
  void holdSize() { sizeHeld_ = true; }
  void releaseSizeSoon();

 signals:
  // In logical pixels of the area.
  void pressed(QMouseEvent* event);
  void moved(QMouseEvent* event);
  void released(QMouseEvent* event);
  void canvasResized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { emit pressed(event); }
  void mouseMoveEvent(QMouseEvent* event) override { emit moved(event); }
  void mouseReleaseEvent(QMouseEvent* event) override { emit released(event); }

 private:
  void showSoon();
  void refresh();
  void keepOverlaysInPlace(const UserMapping& old);

  RasterCanvas canvas_;
  QImage display_;  // the picture in device pixels
  bool showPending_ = false;
  bool sizeHeld_ = false;
};

}  // namespace lensbench
