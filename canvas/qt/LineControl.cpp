#include "canvas/qt/LineControl.h"

#include <algorithm>

#include <QLineF>
#include <QPainter>
#include <QPen>

namespace lensbench {

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
  painter.setPen(border(width_));
  painter.drawLine(onScreen());
}

void LineControl::convert(const UserMapping& from, const UserMapping& to) {
  from_ = to.toUser(from.toPixel(from_));
  to_ = to.toUser(from.toPixel(to_));
}

}  // namespace lensbench
