// Whether a picture on the screen and one made of vectors look alike.
#pragma once

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <string_view>

#include <QImage>
#include <QPointF>
#include <QSize>

#include "canvas/Canvas.h"
#include "canvas/qt/Pixels.h"
#include "canvas/qt/RasterCanvas.h"

namespace lensbench {

// Vectors are rendered with this many pixels, along a side, for each of the screen, so that no thin
// figure falls between them.
constexpr int fine = 2;

struct View {
  QSize size;                       // of the drawing area, logical pixels
  double left, top, right, bottom;  // user units
};

// Passes on to another canvas what is drawn in one colour, or all, but no text.
class Chosen final : public Canvas {
 public:
  Chosen(Canvas& target, const View& view, std::optional<Rgb> colour)
      : target_(target), view_(view), colour_(colour) {
    Scale(view.left, view.top, view.right, view.bottom);
  }

 protected:
  double clientWidth() const override { return view_.size.width(); }
  double clientHeight() const override { return view_.size.height(); }
  void clear(Rgb colour) override {
    target_.BackColor(colour);
    target_.Cls();
  }
  void strokeLine(Point from, Point to, const Pen& pen) override {
    if (take(pen)) target_.Line(from.x, from.y, to.x, to.y, pen.colour);
  }
  void strokeCircle(Point centre, double radius, const Pen& pen, std::optional<Rgb> fill) override {
    if (!take(pen)) return;
    target_.FillStyle(fill ? FillStyle::Solid : FillStyle::Transparent);
    target_.FillColor(fill.value_or(black));
    target_.Circle(centre.x, centre.y, radius, pen.colour);
  }
  void strokeArc(Point centre, double radius, const Pen& pen, double start, double end) override {
    if (take(pen)) target_.Circle(centre.x, centre.y, radius, pen.colour, start, end);
  }
  void paintDot(Point centre, const Pen& pen) override {
    if (take(pen)) target_.PSet(centre.x, centre.y, pen.colour);
  }
  double paintText(Point, std::string_view, const Font& font, Rgb) override { return font.size; }
  bool fillArea(int, int, Rgb, Rgb) override { return false; }
  // Meant only together with its border.
  bool fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body& body) override {
    if (colour_ && *colour_ != border) return false;
    target_.FillStyle(FillStyle::Solid);
    target_.FillColor(fill);
    return target_.FillBody(pixelX, pixelY, border, body);
  }

 private:
  bool take(const Pen& pen) {
    target_.DrawWidth(pen.width);
    target_.DrawStyle(pen.style);
    return !colour_ || *colour_ == pen.colour;
  }

  Canvas& target_;
  View view_;
  std::optional<Rgb> colour_;
};

// What a drawing, or one colour of it, puts on the screen, without smoothing.
template <class Drawing>
QImage screen(const View& view, Drawing&& drawing, std::optional<Rgb> colour = {}) {
  RasterCanvas canvas(view.size, 1, 1);
  canvas.Scale(view.left, view.top, view.right, view.bottom);
  Chosen chosen(canvas, view, colour);
  drawing(chosen);
  return canvas.image().copy();
}

inline QRgb at(const QImage& image, int x, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x] | 0xFF000000u;
}

// Whether a pixel of the colour has its middle within a pixel and a half, of the screen, of a place
// that is given in the pixels of the image, of which a pixel of the screen has size.
inline bool hasNear(const QImage& image, QPointF place, int size, QRgb colour) {
  const int x = static_cast<int>(place.x());
  const int y = static_cast<int>(place.y());
  if (at(image, x, y) == colour) return true;
  const double reach = 1.5 * size;
  for (int j = std::max(0, y - 2 * size); j <= std::min(image.height() - 1, y + 2 * size); ++j) {
    for (int i = std::max(0, x - 2 * size); i <= std::min(image.width() - 1, x + 2 * size); ++i) {
      if (at(image, i, j) != colour) continue;
      if (std::hypot(i + 0.5 - place.x(), j + 0.5 - place.y()) <= reach) return true;
    }
  }
  return false;
}

// That at most a part of the coloured pixels of one image have no like in the other.
inline ::testing::AssertionResult hasAllOf(const QImage& one, const QImage& other, double part) {
  const double scale = static_cast<double>(other.width()) / one.width();
  const int size = scale > 1.0 ? fine : 1;
  // Of what stands in the outermost pixels the like may be outside.
  const int edge = scale < 1.0 ? fine : 1;
  int coloured = 0;
  int missing = 0;
  QPoint first;
  for (int y = edge; y < one.height() - edge; ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(one.constScanLine(y));
    for (int x = edge; x < one.width() - edge; ++x) {
      const QRgb colour = row[x] | 0xFF000000u;
      if (colour == opaque(white)) continue;
      ++coloured;
      if (hasNear(other, QPointF(x + 0.5, y + 0.5) * scale, size, colour)) continue;
      if (missing++ == 0) first = {x, y};
    }
  }
  if (missing <= part * coloured) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << missing << " of " << coloured << " pixels have no like, the first at (" << first.x()
         << ", " << first.y() << ") of colour " << std::hex
         << (at(one, first.x(), first.y()) & 0xFFFFFFu);
}

}  // namespace lensbench
