// The client area of a form: shows the picture, and over it the shapes and lines.
#pragma once

#include <functional>
#include <utility>

#include <QBasicTimer>
#include <QImage>
#include <QString>
#include <QWidget>

#include "canvas/qt/RasterCanvas.h"

class QPainter;

namespace lensbench {

class DrawingArea : public QWidget {
  Q_OBJECT

 public:
  explicit DrawingArea(QWidget* parent);

  // Whoever draws directly is shown; a stale picture read here is still the old one.
  RasterCanvas& canvas() noexcept { return canvas_; }

  // How the picture is brought up to date: called before it is shown or read, while it is stale.
  // anywhere draws all of it from nothing on another canvas of the same scale.
  void drawBy(std::function<void()> bringUpToDate, std::function<void(Canvas&)> anywhere = {}) {
    draw_ = std::move(bringUpToDate);
    drawAnywhere_ = std::move(anywhere);
  }
  // The picture has to be drawn before the next frame, and that frame is wanted.
  void stale();
  // The picture up to date.
  const QImage& image();
  // What is seen, at the display's pixels: the picture and those overlays that belong to it.
  QImage picture();
  // The same as vectors, into a rectangle in the painter's units, of the proportions of the area.
  void paintVectors(QPainter& painter, const QRectF& target) const;

  // How the picture is put in words for those who cannot see it; nothing but a screen reader asks.
  void describeBy(std::function<QString()> inWords) { inWords_ = std::move(inWords); }
  bool hasWords() const { return inWords_ != nullptr; }
  QString words() const { return inWords_ ? inWords_() : accessibleDescription(); }
  // Tells screen readers, if there are any, when the words are no longer those told last. By itself
  // the area does so at most twice a second while the picture changes.
  void tellWords();

  // Gives the canvas the size and the pixel ratio that the widget has.
  void fitCanvas();

 signals:
  // In logical pixels of the area.
  void pressed(QMouseEvent* event);
  void moved(QMouseEvent* event);
  void released(QMouseEvent* event);
  // The canvas has a new size or pixel ratio.
  void canvasResized();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent*) override { fitCanvas(); }
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { emit pressed(event); }
  void mouseMoveEvent(QMouseEvent* event) override { emit moved(event); }
  void mouseReleaseEvent(QMouseEvent* event) override { emit released(event); }

 private:
  // Whether the window is on a display: neither hidden nor minimised nor, say, on another desktop.
  bool isInSight() const;
  // Holds no pixels until it is in sight again.
  void giveUpPixels();
  void wantFrame();
  void bringUpToDate();
  // Brings the picture up to date and shows what has changed outside what is being painted anyway.
  void frame(const QRegion& painted);
  // Where opaque controls lie over the picture.
  QRegion covered() const;
  void paintPicture(QPainter& painter, const QRect& part);
  enum class Which { All, InPicture };
  // On a painter in logical pixels.
  void paintOverlays(QPainter& painter, Which which) const;
  void keepOverlaysInPlace(const UserMapping& old);

  RasterCanvas canvas_;
  QImage strip_;  // of the display, on its way there
  std::function<void()> draw_;
  std::function<void(Canvas&)> drawAnywhere_;
  std::function<QString()> inWords_;
  QString toldWords_;
  QBasicTimer beforeTelling_;
  QBasicTimer beforeGivingBack_;
  bool stale_ = false;
  bool drawing_ = false;
  bool frameWanted_ = false;
  bool wasInSight_ = false;  // when the window last told of it
};

}  // namespace lensbench
