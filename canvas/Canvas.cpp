#include "canvas/Canvas.h"

#include <cmath>
#include <initializer_list>
#include <numbers>

#include "canvas/RuntimeError.h"

namespace lensbench {
namespace {

void requireFinite(std::initializer_list<double> values) {
  for (const double v : values) {
    if (!std::isfinite(v)) throwOverflow();
  }
}

// How many pixels a unit is; signed for user units.
double pixelsPerUnit(ScaleUnit unit, double clientPixels, double scaleLength) {
  switch (unit) {
    case ScaleUnit::Pixel:
      return 1.0;
    case ScaleUnit::Twip:
      return 1.0 / twipsPerPixel;
    case ScaleUnit::User:
      return clientPixels / scaleLength;
  }
  return 1.0;
}

}  // namespace

void Canvas::Cls() {
  clear(painted(backColor_));
  currentX_ = 0.0;
  currentY_ = 0.0;
}

void Canvas::Line(double x1, double y1, double x2, double y2, std::optional<Rgb> colour) {
  requireFinite({x1, y1, x2, y2});
  strokeLine({x1, y1}, {x2, y2}, pen(colour));
  currentX_ = x2;
  currentY_ = y2;
}

void Canvas::Circle(double x, double y, double radius, std::optional<Rgb> colour) {
  requireFinite({x, y, radius});
  const bool filled = fillStyle_ == lensbench::FillStyle::Solid;
  strokeCircle({x, y}, std::fabs(radius), pen(colour),
               filled ? std::optional(painted(fillColor_)) : std::nullopt);
}

void Canvas::Circle(double x, double y, double radius, std::optional<Rgb> colour, double start,
                    double end) {
  requireFinite({x, y, radius, start, end});
  constexpr double turn = 2.0 * std::numbers::pi;
  double sweep = end - start;
  if (sweep < 0.0 || sweep > turn) sweep -= turn * std::floor(sweep / turn);
  strokeArc({x, y}, std::fabs(radius), pen(colour), start, start + sweep);
}

void Canvas::PSet(double x, double y, std::optional<Rgb> colour) {
  requireFinite({x, y});
  paintDot({x, y}, pen(colour));
}

void Canvas::PSets(std::span<const Point> points, std::optional<Rgb> colour) {
  for (const Point& p : points) requireFinite({p.x, p.y});
  paintDots(points, pen(colour));
}

void Canvas::Print(std::string_view text) {
  const double lineHeight = paintText({currentX_, currentY_}, text, font_, painted(foreColor_));
  currentY_ += ScaleY(lineHeight, ScaleUnit::Pixel, ScaleUnit::User);
}

bool Canvas::FloodFill(int pixelX, int pixelY, Rgb border) {
  return fillStyle_ == lensbench::FillStyle::Solid &&
         fillArea(pixelX, pixelY, painted(border), painted(fillColor_));
}

bool Canvas::FillBody(int pixelX, int pixelY, Rgb border, const Body& body) {
  return fillStyle_ == lensbench::FillStyle::Solid &&
         fillBody(pixelX, pixelY, painted(border), painted(fillColor_), body);
}

void Canvas::paintDots(std::span<const Point> centres, const Pen& pen) {
  for (const Point& centre : centres) paintDot(centre, pen);
}

bool Canvas::fillBody(int pixelX, int pixelY, Rgb border, Rgb fill, const Body&) {
  return fillArea(pixelX, pixelY, border, fill);
}

void Canvas::Scale(double x1, double y1, double x2, double y2) {
  requireFinite({x1, y1, x2, y2, x2 - x1, y2 - y1});
  if (x1 == x2 || y1 == y2) throwDivisionByZero();
  user_ = {x1, y1, x2 - x1, y2 - y1};
  userScale_ = true;
  scaleChanged();
}

double Canvas::ScaleX(double value, ScaleUnit from, ScaleUnit to) const {
  const double width = scale().width;
  return value * pixelsPerUnit(from, clientWidth(), width) /
         pixelsPerUnit(to, clientWidth(), width);
}

double Canvas::ScaleY(double value, ScaleUnit from, ScaleUnit to) const {
  const double height = scale().height;
  return value * pixelsPerUnit(from, clientHeight(), height) /
         pixelsPerUnit(to, clientHeight(), height);
}

void Canvas::CurrentX(double x) {
  requireFinite({x});
  currentX_ = x;
}

void Canvas::CurrentY(double y) {
  requireFinite({y});
  currentY_ = y;
}

void Canvas::keepScaleAfterResize(double oldWidth, double oldHeight) {
  if (!userScale_) return;
  user_.width *= clientWidth() / oldWidth;
  user_.height *= clientHeight() / oldHeight;
}

Canvas::UserScale Canvas::scale() const {
  if (userScale_) return user_;
  return {0.0, 0.0, clientWidth() * twipsPerPixel, clientHeight() * twipsPerPixel};
}

Pen Canvas::pen(std::optional<Rgb> colour) const {
  return {painted(colour.value_or(foreColor_)), drawWidth_, drawStyle_};
}

}  // namespace lensbench
