// The drawing surface on pixels that last: hard ones, oversampled for smoothness.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <QImage>
#include <QObject>
#include <QRegion>
#include <QSize>

#include "canvas/Canvas.h"
#include "canvas/qt/Strokes.h"
#include "canvas/qt/Tiles.h"
#include "canvas/qt/UserMapping.h"

namespace lensbench {

// k for a display: two image pixels a device pixel, one where device pixels are fine enough.
constexpr int oversamplingFor(double devicePixelRatio) noexcept {
  return devicePixelRatio >= 2.0 ? 1 : 2;
}

// The image holds k x k pixels for each device pixel. A point of the logical pixel grid stands in
// the middle of its pixel, so that a pen of width 1 on it covers that pixel and no other.
class RasterCanvas final : public QObject, public Canvas {
  Q_OBJECT

 public:
  explicit RasterCanvas(QSize logical = {1, 1}, double devicePixelRatio = 1.0,
                        int oversampling = 1);

  // All image pixels; those of a later state are seen only by another call.
  const QImage& image() const;
  // The pixels of the display from the place at on, as many as the target has.
  void showIn(QImage& target, QPoint at) const;
  QSize displaySize() const noexcept {
    return QSize(tiles_.width(), tiles_.height()) / oversampling_;
  }
  QSize size() const noexcept { return logical_; }
  double devicePixelRatio() const noexcept { return ratio_; }
  int oversampling() const noexcept { return oversampling_; }
  const UserMapping& mapping() const noexcept { return mapping_; }

  // A new client area, at least 1 x 1, in which a user scale keeps its pixels per unit. What has
  // been drawn stays at the upper left and a new strip has BackColor; with another pixel ratio, as
  // with another oversampling, everything has.
  void resize(QSize logical, double devicePixelRatio);
  void setOversampling(int k);
  // Holds no pixels until something is drawn again: everything has BackColor.
  void giveUpPixels();
  // Keeps the memory of the present picture only, and not what earlier ones needed.
  void giveBackSpare() { tiles_.giveBackSpare(); }

  // What has changed since the last call, in pixels of the display; afterwards nothing has.
  QRegion takeDirty();

 signals:
  // Something has changed after nothing had.
  void pictureChanged();
  void scaleReplaced(const lensbench::UserMapping& old);
  // The pixels are no longer what was drawn: size, pixel ratio, oversampling or scale are new, or
  // the pixels have been given up.
  void pictureLost();

 protected:
  double clientWidth() const override { return logical_.width(); }
  double clientHeight() const override { return logical_.height(); }
  void clear(Rgb colour) override;
  void strokeLine(Point from, Point to, const Pen& pen) override;
  void strokeCircle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void strokeArc(Point centre, double radius, const Pen& pen, double start, double end) override;
  void paintDot(Point centre, const Pen& pen) override;
  void paintDots(std::span<const Point> centres, const Pen& pen) override;
  double paintText(Point upperLeft, std::string_view text, const Font& font, Rgb colour) override;
  bool fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) override;
  void scaleChanged() override;

 private:
  struct Stroke;

  double imagePixelsPerPixel() const noexcept { return ratio_ * oversampling_; }
  QSize imageSize() const;
  PixelValue background() const { return opaque(painted(BackColor())); }
  FarPoint toImageFar(Point user) const;
  Point toImage(Point user) const noexcept;
  Stroke stroke(const Pen& pen) const;
  void paintArc(Point centre, double radius, const Pen& pen, double start, double sweep);
  void paintPiece(const Stroke& stroke, const Segment& line);
  void paintDashes(const Stroke& stroke, const Segment& line, double phase);
  void loseAll();
  // The tiles have nothing on them any more.
  void forgetPicture();
  void tellChange();

  QSize logical_;
  double ratio_;
  int oversampling_;
  UserMapping mapping_;  // follows from scale and size; kept because every dot needs it
  mutable Tiles tiles_;  // changes only its notes of what has been copied to the image
  mutable QImage image_;
  bool told_ = false;
  DotStamp stamp_{1};
};

}  // namespace lensbench
