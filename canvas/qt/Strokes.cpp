#include "canvas/qt/Strokes.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace lensbench {
namespace {

// An edge that runs exactly through the middles of pixels is decided by this and not by the last
// bit of a sum.
constexpr double tieBreak = 1.0 / 1024.0;

// 32 bits of whole pixels, 32 of fraction.
using Fixed = std::int64_t;
constexpr double fixedOne = 4294967296.0;

Fixed toFixed(double value) { return static_cast<Fixed>(std::floor(value * fixedOne)); }
int whole(Fixed value) { return static_cast<int>(value >> 32); }

// The first pixel whose middle is not before the edge.
int firstPixel(double edge) { return static_cast<int>(std::ceil(edge - 0.5)); }

// Half the chord of a circle at a distance from its centre.
double halfChord(double radius, double distance) {
  return std::sqrt(std::max(0.0, radius * radius - distance * distance));
}

bool runsBackwards(const Segment& line) {
  return line.from.y > line.to.y || (line.from.y == line.to.y && line.from.x > line.to.x);
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

}  // namespace

void strokeThin(const Pixels& pixels, const Segment& line, PixelValue colour) {
  Point from = line.from;
  Point to = line.to;
  if (runsBackwards(line)) std::swap(from, to);
  const auto column = [&](double x) { return std::min(static_cast<int>(x), pixels.width - 1); };
  const auto row = [&](double y) { return std::min(static_cast<int>(y), pixels.height - 1); };
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
        pixels.row(std::clamp(whole(y), j1, j2))[i] = colour;
      }
    }
  } else {
    Fixed x = toFixed(from.x);
    const Fixed step = toFixed((to.x - from.x) / rows);
    PixelValue* line_ = pixels.row(j1);
    for (int j = j1; j < j2; ++j, x += step, line_ += pixels.stride) {
      line_[std::clamp(whole(x), std::min(i1, i2), std::max(i1, i2))] = colour;
    }
  }
  pixels.row(j2)[i2] = colour;
}

void strokeRound(const Pixels& pixels, const Segment& line, double radius, PixelValue colour) {
  Segment down{{line.from.x - tieBreak, line.from.y - tieBreak},
               {line.to.x - tieBreak, line.to.y - tieBreak}};
  if (runsBackwards(line)) std::swap(down.from, down.to);
  const Capsule capsule(down, radius);

  const auto rowsTo = [&](double y) {
    return static_cast<int>(std::clamp(std::ceil(y - 0.5), 0.0, double(pixels.height)));
  };
  const int top = rowsTo(capsule.top());
  const int bottom = rowsTo(capsule.bottom());
  const int bodyTop = std::clamp(rowsTo(capsule.bodyTop()), top, bottom);
  const int bodyBottom = std::clamp(rowsTo(capsule.bodyBottom()), bodyTop, bottom);

  const auto roundRow = [&](int j) {
    const double y = j + 0.5;
    pixels.fill(j, firstPixel(capsule.left(y)), firstPixel(capsule.right(y)), colour);
  };
  for (int j = top; j < bodyTop; ++j) roundRow(j);
  if (bodyTop < bodyBottom) {
    // Rounded up to the first pixel whose middle is inside: one half less, one whole more.
    constexpr Fixed almostOne = 0xFFFFFFFF;
    const double middle = capsule.middle(bodyTop + 0.5) - 0.5;
    Fixed left = toFixed(middle - capsule.reach()) + almostOne;
    Fixed right = toFixed(middle + capsule.reach()) + almostOne;
    const Fixed step = toFixed(capsule.slope());
    for (int j = bodyTop; j < bodyBottom; ++j, left += step, right += step) {
      pixels.fill(j, whole(left), whole(right), colour);
    }
  }
  for (int j = bodyBottom; j < bottom; ++j) roundRow(j);
}

void fillDisc(const Pixels& pixels, Point centre, double radius, PixelValue colour) {
  const auto within = [](double value, int limit) {
    return static_cast<int>(std::clamp(std::ceil(value - 0.5), 0.0, double(limit)));
  };
  const int bottom = within(centre.y + radius, pixels.height);
  for (int j = within(centre.y - radius, pixels.height); j < bottom; ++j) {
    const double half = halfChord(radius, j + 0.5 - centre.y);
    pixels.fill(j, within(centre.x - half, pixels.width), within(centre.x + half, pixels.width),
                colour);
  }
}

DotStamp::DotStamp(int diameter) : inset_(static_cast<std::size_t>(diameter)) {
  const double radius = diameter / 2.0;
  for (int j = 0; j < diameter; ++j) {
    inset_[static_cast<std::size_t>(j)] = firstPixel(radius - halfChord(radius, j + 0.5 - radius));
  }
}

void DotStamp::paint(const Pixels& pixels, int left, int top, PixelValue colour) const noexcept {
  const int size = diameter();
  if (left >= 0 && top >= 0 && left + size <= pixels.width && top + size <= pixels.height) {
    PixelValue* corner = pixels.row(top) + left;
    for (const int inset : inset_) {
      for (int i = inset; i < size - inset; ++i) corner[i] = colour;
      corner += pixels.stride;
    }
    return;
  }
  const int from = std::max(0, -top);
  const int until = std::min(size, pixels.height - top);
  for (int j = from; j < until; ++j) {
    const int inset = inset_[static_cast<std::size_t>(j)];
    pixels.fill(top + j, left + inset, left + size - inset, colour);
  }
}

}  // namespace lensbench
