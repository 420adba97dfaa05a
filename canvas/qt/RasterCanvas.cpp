#include "canvas/qt/RasterCanvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFont>
#include <QString>

#include "canvas/qt/BoxFilter.h"
#include "canvas/qt/Chords.h"
#include "canvas/qt/FloodFill.h"
#include "canvas/qt/Fonts.h"
#include "canvas/qt/Words.h"

namespace lensbench {
namespace {

// Dots of a dotted pen, in logical pixels: one to paint, then as much free.
constexpr double dotLength = 2.0;
constexpr double dotPeriod = 4.0;

int imagePixels(double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); }

Box boxOf(const Tiles& tiles, double margin) {
  return {-margin, -margin, tiles.width() + margin, tiles.height() + margin};
}

}  // namespace

// A pen in image pixels.
struct RasterCanvas::Stroke {
  PixelValue colour;
  int width;
  bool dotted;

  double radius() const { return width / 2.0; }
  // How far outside the image a figure may stand and still touch it; a thin line must end in it.
  double margin() const { return width == 1 ? 0.0 : radius() + 1.0; }
};

RasterCanvas::RasterCanvas(QSize logical, double devicePixelRatio, int oversampling)
    : logical_(logical.expandedTo({1, 1})),
      ratio_(devicePixelRatio),
      oversampling_(std::max(1, oversampling)),
      mapping_(mappingOf(*this)),
      tiles_(imageSize(), background()) {}

const QImage& RasterCanvas::image() const {
  tiles_.copyTo(image_);
  return image_;
}

void RasterCanvas::showIn(QImage& target, QPoint at) const {
  boxFilter(tiles_, target, at, oversampling_);
}

QSize RasterCanvas::imageSize() const {
  // Whole device pixels, so that each has all its k x k image pixels.
  return QSize(static_cast<int>(std::ceil(logical_.width() * ratio_)),
               static_cast<int>(std::ceil(logical_.height() * ratio_))) *
         oversampling_;
}

void RasterCanvas::resize(QSize logical, double devicePixelRatio) {
  const QSize size = logical.expandedTo({1, 1});
  const QSize old = logical_;
  const bool sameGrid = devicePixelRatio == ratio_;
  if (size == old && sameGrid) return;
  logical_ = size;
  ratio_ = devicePixelRatio;
  keepScaleAfterResize(old.width(), old.height());
  mapping_ = mappingOf(*this);
  if (!sameGrid) {
    loseAll();
    return;
  }
  tiles_.resize(imageSize(), background());
  tellChange();
  emit pictureLost();
}

void RasterCanvas::setOversampling(int k) {
  if (k == oversampling_ || k < 1) return;
  oversampling_ = k;
  loseAll();
}

// Needs no memory: it may be asked for because there is none left.
void RasterCanvas::giveUpPixels() {
  tiles_.clear(background());
  tiles_.giveBackSpare();
  forgetPicture();
}

void RasterCanvas::loseAll() {
  tiles_ = Tiles(imageSize(), background());
  forgetPicture();
}

void RasterCanvas::forgetPicture() {
  image_ = {};
  tellChange();
  emit pictureLost();
}

QRegion RasterCanvas::takeDirty() {
  told_ = false;
  QRegion changed = tiles_.takeChanged();
  const int k = oversampling_;
  if (k == 1) return changed;
  QRegion display;
  for (const QRect& part : changed) {
    display +=
        QRect(QPoint(part.left() / k, part.top() / k), QPoint(part.right() / k, part.bottom() / k));
  }
  return display;
}

inline void RasterCanvas::tellChange() {
  if (told_ || !tiles_.changed()) return;
  told_ = true;
  emit pictureChanged();
}

FarPoint RasterCanvas::toImageFar(Point user) const {
  const auto scale = static_cast<long double>(imagePixelsPerPixel());
  const auto x = (static_cast<long double>(user.x) - mapping_.left) * mapping_.xPixels;
  const auto y = (static_cast<long double>(user.y) - mapping_.top) * mapping_.yPixels;
  return {(x + 0.5L) * scale, (y + 0.5L) * scale};
}

inline Point RasterCanvas::toImage(Point user) const noexcept {
  const double scale = imagePixelsPerPixel();
  const Point pixel = mapping_.toPixel(user);
  return {(pixel.x + 0.5) * scale, (pixel.y + 0.5) * scale};
}

inline RasterCanvas::Stroke RasterCanvas::stroke(const Pen& pen) const {
  return {opaque(pen.colour), imagePixels(pen.width * imagePixelsPerPixel()),
          pen.style == lensbench::DrawStyle::Dotted && pen.width == 1};
}

void RasterCanvas::clear(Rgb colour) {
  tiles_.clear(opaque(colour));
  tellChange();
}

void RasterCanvas::strokeLine(Point from, Point to, const Pen& pen) {
  // One order for both directions, so that they paint the same pixels.
  if (from.y > to.y || (from.y == to.y && from.x > to.x)) std::swap(from, to);
  const Stroke pencil = stroke(pen);
  const auto visible = clipped(toImageFar(from), toImageFar(to), boxOf(tiles_, pencil.margin()));
  if (!visible) return;
  if (pencil.dotted) {
    // The dots have fixed places along the endless line, so clipping does not shift them.
    const double dx = visible->to.x - visible->from.x;
    const double dy = visible->to.y - visible->from.y;
    const double length = std::hypot(dx, dy);
    const double phase =
        length > 0.0 ? (visible->from.x * dx + visible->from.y * dy) / length : 0.0;
    paintDashes(pencil, *visible, phase);
  } else {
    paintPiece(pencil, *visible);
  }
  tellChange();
}

void RasterCanvas::paintPiece(const Stroke& pencil, const Segment& line) {
  if (pencil.width == 1) {
    strokeThin(tiles_, line, pencil.colour);
  } else {
    strokeRound(tiles_, line, pencil.radius(), pencil.colour);
  }
}

void RasterCanvas::paintDashes(const Stroke& pencil, const Segment& line, double phase) {
  const double scale = imagePixelsPerPixel();
  const double period = dotPeriod * scale;
  // The round ends of the pen are part of the dot.
  const double on = dotLength * scale - pencil.width;
  const double dx = line.to.x - line.from.x;
  const double dy = line.to.y - line.from.y;
  const double length = std::hypot(dx, dy);
  const auto at = [&](double distance) {
    if (length == 0.0) return line.from;
    return Point{line.from.x + dx * distance / length, line.from.y + dy * distance / length};
  };
  double offset = std::fmod(phase, period);
  if (offset < 0.0) offset += period;
  for (double from = -offset; from <= length; from += period) {
    const double first = std::max(from, 0.0);
    const double last = std::min(from + on, length);
    if (first <= last) paintPiece(pencil, {at(first), at(last)});
  }
}

void RasterCanvas::strokeCircle(Point centre, double radius, const Pen& pen,
                                std::optional<Rgb> fill) {
  if (fill) {
    const Point middle = toImage(centre);
    const double reach = radius * std::fabs(mapping_.xPixels) * imagePixelsPerPixel();
    if (isFinite(middle) && std::isfinite(reach)) {
      fillDisc(tiles_, middle, reach, opaque(*fill));
    }
  }
  paintArc(centre, radius, pen, 0.0, 2.0 * std::numbers::pi);
}

void RasterCanvas::strokeArc(Point centre, double radius, const Pen& pen, double start,
                             double end) {
  paintArc(centre, radius, pen, start, end - start);
}

void RasterCanvas::paintArc(Point centre, double radius, const Pen& pen, double start,
                            double sweep) {
  const Point middle = toImage(centre);
  const double reach = radius * std::fabs(mapping_.xPixels) * imagePixelsPerPixel();
  if (!isFinite(middle) || !std::isfinite(reach)) return;
  // Where x grows leftward, so does angle 0 point.
  const double zero = mapping_.xPixels < 0.0 ? std::numbers::pi : 0.0;
  const Stroke pencil = stroke(pen);
  const Box box = boxOf(tiles_, pencil.margin());
  const auto paint = [&](const Segment& chord, double along) {
    const auto visible = clipped({chord.from.x, chord.from.y}, {chord.to.x, chord.to.y}, box);
    if (!visible) return;
    if (pencil.dotted) {
      const double cut = std::hypot(visible->from.x - chord.from.x, visible->from.y - chord.from.y);
      paintDashes(pencil, *visible, along + cut);
    } else {
      paintPiece(pencil, *visible);
    }
  };
  Chords({middle, reach, start + zero, sweep}).visitNear(box, paint);
  tellChange();
}

void RasterCanvas::paintDot(Point centre, const Pen& pen) { paintDots({&centre, 1}, pen); }

void RasterCanvas::paintDots(std::span<const Point> centres, const Pen& pen) {
  const Stroke pencil = stroke(pen);
  const int width = pencil.width;
  if (stamp_.diameter() != width) stamp_ = DotStamp(width);
  // The upper-left pixel is the nearest to half a width before the middle; lifted above zero,
  // where truncation rounds down.
  const int lift = 2 * width;
  const double corner = lift + 0.5 - width / 2.0;
  const int right = tiles_.width() + width;
  const int bottom = tiles_.height() + width;
  for (const Point& centre : centres) {
    const Point middle = toImage(centre);
    // False also where the numbers no longer fit a pixel index.
    if (middle.x > -width && middle.x < right && middle.y > -width && middle.y < bottom) {
      stamp_.paint(tiles_, static_cast<int>(middle.x + corner) - lift,
                   static_cast<int>(middle.y + corner) - lift, pencil.colour);
    }
  }
  tellChange();
}

double RasterCanvas::paintText(Point upperLeft, std::string_view text, const Font& font,
                               Rgb colour) {
  const double scale = imagePixelsPerPixel();
  QFont face(installedFamily(QString::fromStdString(font.name)));
  face.setPixelSize(imagePixels(font.size * 96.0 / 72.0 * scale));
  face.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  const Point middle = toImage(upperLeft);
  // The corner of the pixel, not its middle, is where text begins.
  const Point corner{middle.x - scale / 2.0, middle.y - scale / 2.0};
  const double lineHeight = drawWords(tiles_, corner, text, face, opaque(colour));
  tellChange();
  return lineHeight / scale;
}

bool RasterCanvas::fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) {
  if (!QRect(QPoint(0, 0), logical_).contains(pixelX, pixelY)) return false;
  const double scale = imagePixelsPerPixel();
  const bool filled =
      floodFill(tiles_, static_cast<int>((pixelX + 0.5) * scale),
                static_cast<int>((pixelY + 0.5) * scale), opaque(border), opaque(fill));
  tellChange();
  return filled;
}

void RasterCanvas::scaleChanged() {
  const UserMapping old = mapping_;
  mapping_ = mappingOf(*this);
  emit scaleReplaced(old);
  if (mapping_ != old) emit pictureLost();
}

}  // namespace lensbench
