// Rastering: which pixels one-pixel lines, round pens, dots and discs consist of.
//
// Coordinates are image pixels; the pixel (i, j) covers [i, i + 1) x [j, j + 1). Pixels are hard:
// painted or not, so that the same figure in the background's colour takes away what it painted.
//
// The surface has width() and height(); set(x, y, colour) and fill(y, from, until, colour), which
// see only pixels of the image and runs that are not empty; and fillBand(band, colour), whose rows
// are rows of the image but whose columns may lie outside.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>
#include <vector>

#include "canvas/qt/Clipping.h"
#include "canvas/qt/Pixels.h"

namespace lensbench {

namespace strokes {

// An edge that runs exactly through the middles of pixels is decided by this and not by the last
// bit of a sum.
constexpr double tieBreak = 1.0 / 1024.0;

constexpr double fixedOne = 4294967296.0;

inline Fixed toFixed(double value) { return static_cast<Fixed>(std::floor(value * fixedOne)); }

// The first pixel whose middle is not before the edge.
inline int firstPixel(double edge) { return static_cast<int>(std::ceil(edge - 0.5)); }
// The same, as far as it lies in the image.
inline int firstPixel(double edge, int limit) {
  return static_cast<int>(std::clamp(std::ceil(edge - 0.5), 0.0, static_cast<double>(limit)));
}

// Half the chord of a circle at a distance from its centre.
inline double halfChord(double radius, double distance) {
  return std::sqrt(std::max(0.0, radius * radius - distance * distance));
}

inline bool runsBackwards(const Segment& line) {
  return line.from.y > line.to.y || (line.from.y == line.to.y && line.from.x > line.to.x);
}

// Paints the part of a row that lies in the image.
template <typename Surface>
void fillRow(Surface& surface, int y, int from, int until, PixelValue colour) {
  const int first = std::max(from, 0);
  const int last = std::min(until, surface.width());
  if (first < last) surface.fill(y, first, last, colour);
}

// A round-ended stroke as the left and right border of each row; the line runs downwards.
class Capsule {
 public:
  Capsule(const Segment& line, double radius) : from_(line.from), to_(line.to), radius_(radius) {
    const double dx = to_.x - from_.x;
    const double dy = to_.y - from_.y;
    const double length = std::hypot(dx, dy);
    if (length > 0.0) lean_ = radius * dx / length;
    if (dy > 0.0) {
      slope_ = dx / dy;
      reach_ = radius * length / dy;
    }
  }

  double top() const { return from_.y - radius_; }
  double bottom() const { return to_.y + radius_; }
  // Between these both borders are straight.
  double bodyTop() const { return from_.y + std::fabs(lean_); }
  double bodyBottom() const { return to_.y - std::fabs(lean_); }
  double slope() const { return slope_; }
  double middle(double y) const { return from_.x + (y - from_.y) * slope_; }
  double reach() const { return reach_; }

  double left(double y) const {
    const double leftmost = std::min(from_.x, to_.x) - radius_;
    if (y <= from_.y + lean_) return from_.x - halfChord(radius_, y - from_.y);
    if (y >= to_.y + lean_) return to_.x - halfChord(radius_, y - to_.y);
    return std::max(middle(y) - reach_, leftmost);
  }

  double right(double y) const {
    const double rightmost = std::max(from_.x, to_.x) + radius_;
    if (y <= from_.y - lean_) return from_.x + halfChord(radius_, y - from_.y);
    if (y >= to_.y - lean_) return to_.x + halfChord(radius_, y - to_.y);
    return std::min(middle(y) + reach_, rightmost);
  }

 private:
  Point from_;
  Point to_;
  double radius_;
  double lean_ = 0.0;   // how far below an end the left border leaves that end's circle
  double slope_ = 0.0;  // columns per row
  double reach_ = 0.0;  // half the width of a row between the straight borders
};

}  // namespace strokes

// An unbroken (8-connected) chain from the pixel of one end to the pixel of the other, the same in
// both directions. Both ends must lie in the image.
template <typename Surface>
void strokeThin(Surface& surface, const Segment& line, PixelValue colour) {
  using namespace strokes;
  Point from = line.from;
  Point to = line.to;
  if (runsBackwards(line)) std::swap(from, to);
  const auto column = [&](double x) { return std::min(static_cast<int>(x), surface.width() - 1); };
  const auto row = [&](double y) { return std::min(static_cast<int>(y), surface.height() - 1); };
  const int i1 = column(from.x);
  const int j1 = row(from.y);
  const int i2 = column(to.x);
  const int j2 = row(to.y);
  const int columns = std::abs(i2 - i1);
  const int rows = j2 - j1;
  const int sideways = i2 < i1 ? -1 : 1;
  // The longer direction goes pixel by pixel, the other follows the line between the true ends.
  if (columns >= rows) {
    if (columns > 0) {
      Fixed y = toFixed(from.y);
      const Fixed step = toFixed((to.y - from.y) / columns);
      for (int n = 0, i = i1; n < columns; ++n, i += sideways, y += step) {
        surface.set(i, std::clamp(whole(y), j1, j2), colour);
      }
    }
  } else {
    Fixed x = toFixed(from.x);
    const Fixed step = toFixed((to.x - from.x) / rows);
    for (int j = j1; j < j2; ++j, x += step) {
      surface.set(std::clamp(whole(x), std::min(i1, i2), std::max(i1, i2)), j, colour);
    }
  }
  surface.set(i2, j2, colour);
}

// Every pixel whose middle is within radius of the line; what lies outside the image is left out.
template <typename Surface>
void strokeRound(Surface& surface, const Segment& line, double radius, PixelValue colour) {
  using namespace strokes;
  Segment down{{line.from.x - tieBreak, line.from.y - tieBreak},
               {line.to.x - tieBreak, line.to.y - tieBreak}};
  if (runsBackwards(line)) std::swap(down.from, down.to);
  const Capsule capsule(down, radius);

  const int height = surface.height();
  const int top = firstPixel(capsule.top(), height);
  const int bottom = firstPixel(capsule.bottom(), height);
  const int bodyTop = std::clamp(firstPixel(capsule.bodyTop(), height), top, bottom);
  const int bodyBottom = std::clamp(firstPixel(capsule.bodyBottom(), height), bodyTop, bottom);

  const auto roundRow = [&](int j) {
    const double y = j + 0.5;
    fillRow(surface, j, firstPixel(capsule.left(y)), firstPixel(capsule.right(y)), colour);
  };
  for (int j = top; j < bodyTop; ++j) roundRow(j);
  if (bodyTop < bodyBottom) {
    // Rounded up to the first pixel whose middle is inside: one half less, one whole more.
    constexpr Fixed almostOne = 0xFFFFFFFF;
    const double middle = capsule.middle(bodyTop + 0.5) - 0.5;
    surface.fillBand({bodyTop, bodyBottom, toFixed(middle - capsule.reach()) + almostOne,
                      toFixed(middle + capsule.reach()) + almostOne, toFixed(capsule.slope())},
                     colour);
  }
  for (int j = bodyBottom; j < bottom; ++j) roundRow(j);
}

template <typename Surface>
void fillDisc(Surface& surface, Point centre, double radius, PixelValue colour) {
  using namespace strokes;
  const int bottom = firstPixel(centre.y + radius, surface.height());
  for (int j = firstPixel(centre.y - radius, surface.height()); j < bottom; ++j) {
    const double half = halfChord(radius, j + 0.5 - centre.y);
    fillRow(surface, j, firstPixel(centre.x - half, surface.width()),
            firstPixel(centre.x + half, surface.width()), colour);
  }
}

// A round dot of whole pixels, the same shape wherever it is put.
class DotStamp {
 public:
  explicit DotStamp(int diameter) {
    const double radius = diameter / 2.0;
    for (int j = 0; j < diameter; ++j) {
      inset_.push_back(strokes::firstPixel(radius - strokes::halfChord(radius, j + 0.5 - radius)));
    }
  }
  int diameter() const noexcept { return static_cast<int>(inset_.size()); }

  // left, top: the upper-left pixel of its square.
  template <typename Surface>
  void paint(Surface& surface, int left, int top, PixelValue colour) const {
    const int size = diameter();
    const int until = std::min(size, surface.height() - top);
    for (int j = std::max(0, -top); j < until; ++j) {
      const int inset = inset_[static_cast<std::size_t>(j)];
      strokes::fillRow(surface, top + j, left + inset, left + size - inset, colour);
    }
  }

 private:
  std::vector<int> inset_;  // per row, how many pixels of the square stay free at each side
};

}  // namespace lensbench
