#include "canvas/qt/RasterCanvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPainter>
#include <QString>

#include "canvas/qt/Chords.h"
#include "canvas/qt/FloodFill.h"
#include "canvas/qt/Fonts.h"

namespace lensbench {
namespace {

// Dots of a dotted pen, in logical pixels: one to paint, then as much free.
constexpr double dotLength = 2.0;
constexpr double dotPeriod = 4.0;

int imagePixels(double pixels) { return std::max(1, static_cast<int>(std::lround(pixels))); }

Box boxOf(const Pixels& pixels, double margin) {
  return {-margin, -margin, pixels.width + margin, pixels.height + margin};
}

bool isFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// The bounding rectangle of figures around a segment, cut to the image.
QRect around(const Pixels& pixels, const Segment& s, double margin) {
  const auto cut = [](double v, int limit) {
    return static_cast<int>(std::clamp(std::floor(v), 0.0, limit - 1.0));
  };
  const QPoint first(cut(std::min(s.from.x, s.to.x) - margin, pixels.width),
                     cut(std::min(s.from.y, s.to.y) - margin, pixels.height));
  const QPoint last(cut(std::max(s.from.x, s.to.x) + margin, pixels.width),
                    cut(std::max(s.from.y, s.to.y) + margin, pixels.height));
  return {first, last};
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
      mapping_(currentMapping()),
      image_(imageSize(logical_, imagePixelsPerPixel()), QImage::Format_RGB32) {
  image_.fill(opaque(painted(BackColor())));
  dirty_ = image_.rect();
}

UserMapping RasterCanvas::currentMapping() const {
  return {ScaleLeft(), ScaleTop(), ScaleX(1.0, ScaleUnit::User, ScaleUnit::Pixel),
          ScaleY(1.0, ScaleUnit::User, ScaleUnit::Pixel)};
}

QSize RasterCanvas::imageSize(QSize logical, double pixelsPerPixel) const {
  // Whole device pixels, so that each has all its k x k image pixels.
  const double device = pixelsPerPixel / oversampling_;
  return QSize(static_cast<int>(std::ceil(logical.width() * device)),
               static_cast<int>(std::ceil(logical.height() * device))) *
         oversampling_;
}

void RasterCanvas::resize(QSize logical, double devicePixelRatio) {
  const QSize size = logical.expandedTo({1, 1});
  const double oldPixelsPerPixel = imagePixelsPerPixel();
  const QSize old = logical_;
  if (size == old && devicePixelRatio == ratio_) return;
  logical_ = size;
  ratio_ = devicePixelRatio;
  keepScaleAfterResize(old.width(), old.height());
  mapping_ = currentMapping();
  resample(oldPixelsPerPixel);
}

void RasterCanvas::setOversampling(int k) {
  if (k == oversampling_ || k < 1) return;
  const double oldPixelsPerPixel = imagePixelsPerPixel();
  oversampling_ = k;
  resample(oldPixelsPerPixel);
}

void RasterCanvas::resample(double oldPixelsPerPixel) {
  const double pixelsPerPixel = imagePixelsPerPixel();
  QImage old = std::move(image_);
  if (pixelsPerPixel != oldPixelsPerPixel) {
    const double zoom = pixelsPerPixel / oldPixelsPerPixel;
    old = old.scaled(imagePixels(old.width() * zoom), imagePixels(old.height() * zoom),
                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
              .convertToFormat(QImage::Format_RGB32);
  }
  image_ = QImage(imageSize(logical_, pixelsPerPixel), QImage::Format_RGB32);
  image_.fill(opaque(painted(BackColor())));
  QPainter(&image_).drawImage(0, 0, old);
  dirty_ = {};
  markDirty(image_.rect());
  emit pictureLost();
}

QRect RasterCanvas::takeDirty() {
  const QRect changed = dirty_ & image_.rect();
  dirty_ = {};
  return changed;
}

inline void RasterCanvas::markDirty(const QRect& changed) {
  if (changed.isEmpty()) return;
  if (dirty_.isEmpty()) {
    dirty_ = changed;
    emit pictureChanged();
    return;
  }
  dirty_.setCoords(std::min(dirty_.left(), changed.left()), std::min(dirty_.top(), changed.top()),
                   std::max(dirty_.right(), changed.right()),
                   std::max(dirty_.bottom(), changed.bottom()));
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
  image_.fill(opaque(colour));
  markDirty(image_.rect());
}

void RasterCanvas::strokeLine(Point from, Point to, const Pen& pen) {
  // One order for both directions, so that they paint the same pixels.
  if (from.y > to.y || (from.y == to.y && from.x > to.x)) std::swap(from, to);
  const Stroke pencil = stroke(pen);
  const Pixels pixels(image_);
  const auto visible = clipped(toImageFar(from), toImageFar(to), boxOf(pixels, pencil.margin()));
  if (!visible) return;
  if (pencil.dotted) {
    // The dots have fixed places along the endless line, so clipping does not shift them.
    const double dx = visible->to.x - visible->from.x;
    const double dy = visible->to.y - visible->from.y;
    const double length = std::hypot(dx, dy);
    const double phase =
        length > 0.0 ? (visible->from.x * dx + visible->from.y * dy) / length : 0.0;
    paintDashes(pixels, pencil, *visible, phase);
  } else {
    paintPiece(pixels, pencil, *visible);
  }
  markDirty(around(pixels, *visible, pencil.radius() + 1.0));
}

void RasterCanvas::paintPiece(const Pixels& pixels, const Stroke& pencil, const Segment& line) {
  if (pencil.width == 1) {
    strokeThin(pixels, line, pencil.colour);
  } else {
    strokeRound(pixels, line, pencil.radius(), pencil.colour);
  }
}

void RasterCanvas::paintDashes(const Pixels& pixels, const Stroke& pencil, const Segment& line,
                               double phase) {
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
    if (first <= last) paintPiece(pixels, pencil, {at(first), at(last)});
  }
}

void RasterCanvas::strokeCircle(Point centre, double radius, const Pen& pen,
                                std::optional<Rgb> fill) {
  if (fill) {
    const Point middle = toImage(centre);
    const double reach = radius * std::fabs(mapping_.xPixels) * imagePixelsPerPixel();
    if (isFinite(middle) && std::isfinite(reach)) {
      const Pixels pixels(image_);
      fillDisc(pixels, middle, reach, opaque(*fill));
      markDirty(around(pixels, {middle, middle}, reach + 1.0));
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
  const Pixels pixels(image_);
  const Box box = boxOf(pixels, pencil.margin());
  QRect changed;
  const auto paint = [&](const Segment& chord, double along) {
    const auto visible = clipped({chord.from.x, chord.from.y}, {chord.to.x, chord.to.y}, box);
    if (!visible) return;
    if (pencil.dotted) {
      const double cut = std::hypot(visible->from.x - chord.from.x, visible->from.y - chord.from.y);
      paintDashes(pixels, pencil, *visible, along + cut);
    } else {
      paintPiece(pixels, pencil, *visible);
    }
    changed |= around(pixels, *visible, pencil.radius() + 1.0);
  };
  Chords({middle, reach, start + zero, sweep}).visitNear(box, paint);
  markDirty(changed);
}

void RasterCanvas::paintDot(Point centre, const Pen& pen) {
  const Point middle = toImage(centre);
  const int width = stroke(pen).width;
  const Pixels pixels(image_);
  // Also where the numbers no longer fit a pixel index.
  if (!(middle.x > -width && middle.x < pixels.width + width && middle.y > -width &&
        middle.y < pixels.height + width)) {
    return;
  }
  if (stamp_.diameter() != width) stamp_ = DotStamp(width);
  // The upper-left pixel is the nearest to half a width before the middle; lifted above zero,
  // where truncation rounds down.
  const int lift = 2 * width;
  const double corner = lift + 0.5 - width / 2.0;
  const int left = static_cast<int>(middle.x + corner) - lift;
  const int top = static_cast<int>(middle.y + corner) - lift;
  stamp_.paint(pixels, left, top, opaque(pen.colour));
  markDirty(QRect(left, top, width, width));
}

double RasterCanvas::paintText(Point upperLeft, std::string_view text, const Font& font,
                               Rgb colour) {
  const double scale = imagePixelsPerPixel();
  QFont face(installedFamily(QString::fromStdString(font.name)));
  face.setPixelSize(imagePixels(font.size * 96.0 / 72.0 * scale));
  face.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  const QFontMetricsF metrics(face, &image_);
  const double lineHeight = metrics.lineSpacing() / scale;

  // The corner of the pixel, not its middle, is where text begins.
  const Point middle = toImage(upperLeft);
  const QPointF corner(middle.x - scale / 2.0, middle.y - scale / 2.0);
  const QString words = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  const QPointF baseline(corner.x(), corner.y() + metrics.ascent());
  const QRectF bounds = metrics.boundingRect(words).translated(baseline);
  const QRectF image(image_.rect());
  if (!isFinite(middle) || !bounds.adjusted(-2, -2, 2, 2).intersects(image)) return lineHeight;
  QPainter painter(&image_);
  painter.setFont(face);
  painter.setPen(QColor::fromRgb(opaque(colour)));
  painter.drawText(baseline, words);
  markDirty(bounds.adjusted(-2, -2, 2, 2).intersected(image).toAlignedRect() & image_.rect());
  return lineHeight;
}

bool RasterCanvas::fillArea(int pixelX, int pixelY, Rgb border, Rgb fill) {
  if (!QRect(QPoint(0, 0), logical_).contains(pixelX, pixelY)) return false;
  const double scale = imagePixelsPerPixel();
  const QRect filled =
      floodFill(Pixels(image_), static_cast<int>((pixelX + 0.5) * scale),
                static_cast<int>((pixelY + 0.5) * scale), opaque(border), opaque(fill));
  markDirty(filled);
  return !filled.isEmpty();
}

void RasterCanvas::scaleChanged() {
  const UserMapping old = mapping_;
  mapping_ = currentMapping();
  emit scaleReplaced(old);
  if (mapping_ != old) emit pictureLost();
}

}  // namespace lensbench
