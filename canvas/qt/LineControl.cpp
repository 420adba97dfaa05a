#include "canvas/qt/LineControl.h"

#include <algorithm>
#include <cmath>

#include <QLineF>
#include <QPainter>
#include <QTransform>

namespace lensbench {
namespace {

// The middle of a stroke of whole device pixels nearest to the given one; of two that are as near,
// the one further left or up, as on the canvas.
double wholePixels(double middle, double width) {
  constexpr double tieBreak = 1.0 / 1024.0;
  return std::ceil(middle - width / 2.0 - 0.5 - tieBreak) + width / 2.0;
}

// An upright stroke with its ends in device pixels, which it all covers.
QLineF upright(double middle, double end1, double end2, double width) {
  const double x = wholePixels(middle, width);
  return {x, std::floor(std::min(end1, end2)), x, std::ceil(std::max(end1, end2))};
}

}  // namespace

LineControl::LineControl(Form& form, const QString& name, const Ends& ends) : Overlay(form, name) {
  const UserMapping map = mapping();
  from_ = map.toUser({ends.x1 / twipsPerPixel, ends.y1 / twipsPerPixel});
  to_ = map.toUser({ends.x2 / twipsPerPixel, ends.y2 / twipsPerPixel});
  change([] {});
}

void LineControl::X1(double x) {
  change([&] { from_.x = x; });
}

void LineControl::Y1(double y) {
  change([&] { from_.y = y; });
}

void LineControl::X2(double x) {
  change([&] { to_.x = x; });
}

void LineControl::Y2(double y) {
  change([&] { to_.y = y; });
}

void LineControl::between(Point from, Point to) {
  change([&] {
    from_ = from;
    to_ = to;
  });
}

void LineControl::BorderWidth(int pixels) {
  change([&] { width_ = std::max(1, pixels); });
}

QLineF LineControl::onScreen() const {
  const UserMapping map = mapping();
  const Point from = map.toPixel(from_);
  const Point to = map.toPixel(to_);
  return {from.x, from.y, to.x, to.y};
}

QRectF LineControl::bounds() const {
  const QLineF line = onScreen();
  return QRectF(line.p1(), line.p2()).normalized().adjusted(-width_, -width_, width_, width_);
}

void LineControl::paint(QPainter& painter) const {
  const QTransform toDevice = painter.deviceTransform();
  const QLineF line = toDevice.map(onScreen());
  const double ratio = toDevice.m11();
  const double width = std::max(1.0, std::round(width_ * ratio));
  QLineF device = line;
  if (line.x1() == line.x2()) {
    device = upright(line.x1(), line.y1(), line.y2(), width);
  } else if (line.y1() == line.y2()) {
    const QLineF turned = upright(line.y1(), line.x1(), line.x2(), width);
    device = {turned.y1(), turned.x1(), turned.y2(), turned.x2()};
  }
  painter.setPen(border(width / ratio));
  painter.drawLine(toDevice.inverted().map(device));
}

void LineControl::convert(const UserMapping& from, const UserMapping& to) {
  from_ = to.toUser(from.toPixel(from_));
  to_ = to.toUser(from.toPixel(to_));
}

}  // namespace lensbench
