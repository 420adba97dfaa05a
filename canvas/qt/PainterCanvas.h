// A canvas on any paint device of the toolkit: vector pictures, printers.
#pragma once

#include <optional>
#include <string_view>

#include <QPainter>
#include <QRectF>
#include <QSizeF>

#include "canvas/Canvas.h"

namespace lensbench {

// A client area of the given size in logical pixels stands for the target, a rectangle in the
// painter's units; nothing is painted outside it. Pens, dots and text keep their size in logical
// pixels. There are no pixels to flood: a fill paints the body that it has been told, or nothing.
class PainterCanvas final : public Canvas {
 public:
  PainterCanvas(QPainter& painter, const QRectF& target, QSizeF logical);
  // Puts the painter back to what it was.
  ~PainterCanvas() override;
  PainterCanvas(const PainterCanvas&) = delete;
  PainterCanvas& operator=(const PainterCanvas&) = delete;

 protected:
  double clientWidth() const override { return logical_.width(); }
  double clientHeight() const override { return logical_.height(); }
  void clear(Rgb colour) override;
  void strokeLine(Point from, Point to, const Pen& pen) override;
  void strokeCircle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override;
  void strokeArc(Point centre, double radius, const Pen& pen, double start, double end) override;
  void paintDot(Point centre, const Pen& pen) override;
  double paintText(Point upperLeft, std::string_view text, const Font& font, Rgb colour) override;
  bool fillArea(int, int, Rgb, Rgb) override { return false; }
  bool fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body& body) override;

 private:
  // On the client area, where a point stands in the middle of its pixel.
  Point place(Point user) const;
  double length(double user) const;
  // A disc without border on the client area.
  void paintDisc(Point middle, double radius, Rgb colour);
  // Where x grows leftward, so does angle 0 point.
  double angle(double user) const;

  QPainter& painter_;
  QSizeF logical_;
};

}  // namespace lensbench
