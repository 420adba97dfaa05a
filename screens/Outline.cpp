#include "screens/Outline.h"

#include <cmath>

#include <QtMath>

namespace lensbench {

QPainterPath lineOutline(const UserMapping& map, Point from, Point to) {
  const Point a = map.toPixel(from);
  const Point b = map.toPixel(to);
  QPainterPath path({a.x, a.y});
  path.lineTo(b.x, b.y);
  return path;
}

QPainterPath ringOutline(const UserMapping& map, Point middle, double radius) {
  const Point p = map.toPixel(middle);
  QPainterPath path;
  path.addEllipse(QPointF(p.x, p.y), radius, radius);
  return path;
}

QPainterPath dotOutline(std::initializer_list<const Shape*> dots) {
  QPainterPath path;
  for (const Shape* dot : dots) {
    if (dot->Visible()) path.addEllipse(dot->bounds().adjusted(1, 1, -1, -1));
  }
  return path;
}

QPainterPath crossingOutline(const UserMapping& map, Point centre, double radius,
                             double halfAngle) {
  const Point middle = map.toPixel(centre);
  const double x = radius * std::fabs(map.xPixels);
  const double y = radius * std::fabs(map.yPixels);
  const QRectF circle(middle.x - x, middle.y - y, 2.0 * x, 2.0 * y);
  const double half = qRadiansToDegrees(halfAngle);
  QPainterPath path;
  for (const double crossing : {0.0, 180.0}) {
    path.arcMoveTo(circle, crossing - half);
    path.arcTo(circle, crossing - half, 2.0 * half);
  }
  return path;
}

}  // namespace lensbench
