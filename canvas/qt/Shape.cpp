#include "canvas/qt/Shape.h"

#include <cmath>

#include <QPainter>

namespace lensbench {

Shape::Shape(Form& form, const QString& name, const Place& place) : Overlay(form, name) {
  const UserMapping map = mapping();
  const Point corner = map.toUser({place.left / twipsPerPixel, place.top / twipsPerPixel});
  left_ = corner.x;
  top_ = corner.y;
  width_ = place.width / twipsPerPixel / std::fabs(map.xPixels);
  height_ = place.height / twipsPerPixel / std::fabs(map.yPixels);
  change([] {});
}

void Shape::Left(double x) {
  change([&] { left_ = x; });
}

void Shape::Top(double y) {
  change([&] { top_ = y; });
}

void Shape::Width(double width) {
  change([&] { width_ = width; });
}

void Shape::Height(double height) {
  change([&] { height_ = height; });
}

void Shape::FillColor(Rgb colour) {
  change([&] { fillColor_ = colour; });
}

void Shape::FillStyle(lensbench::FillStyle style) {
  change([&] { fillStyle_ = style; });
}

QRectF Shape::rectangle() const {
  const UserMapping map = mapping();
  const Point corner = map.toPixel({left_, top_});
  return {corner.x, corner.y, width_ * std::fabs(map.xPixels), height_ * std::fabs(map.yPixels)};
}

QRectF Shape::bounds() const { return rectangle().adjusted(-1, -1, 1, 1); }

void Shape::paint(QPainter& painter) const {
  painter.setPen(border(1.0));
  painter.setBrush(fillStyle_ == lensbench::FillStyle::Solid
                       ? QBrush(QColor::fromRgb(opaque(painted(fillColor_))))
                       : QBrush(Qt::NoBrush));
  painter.drawEllipse(rectangle());
}

void Shape::convert(const UserMapping& from, const UserMapping& to) {
  const Point corner = to.toUser(from.toPixel({left_, top_}));
  left_ = corner.x;
  top_ = corner.y;
  width_ *= std::fabs(from.xPixels / to.xPixels);
  height_ *= std::fabs(from.yPixels / to.yPixels);
}

}  // namespace lensbench
