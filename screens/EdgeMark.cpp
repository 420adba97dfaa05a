#include "screens/EdgeMark.h"

#include <algorithm>
#include <cmath>

namespace lensbench {
namespace {

constexpr double size = 9.0;       // pixels
constexpr double markReach = 8.0;  // of the mouse around its middle, pixels

}  // namespace

EdgeMark::EdgeMark(Form& form, const QString& name, Rgb colour)
    : Shape(form, name, {0.0, 0.0, size * twipsPerPixel, size * twipsPerPixel}), form_(form) {
  FillStyle(lensbench::FillStyle::Solid);
  FillColor(colour);
  Visible(false);
  // The controls that it keeps clear of do not go along with the picture.
  InPicture(false);
}

void EdgeMark::follow(Point user) {
  const UserMapping map = form_.canvas().mapping();
  const QWidget& area = *form_.drawingArea();
  const QSize whole = form_.canvas().size();
  const auto controlOver = [&](Point p) {
    return area.childAt(static_cast<int>(p.x), static_cast<int>(p.y));
  };
  Point p = map.toPixel(user);
  const bool inside = p.x >= 0.0 && p.x <= whole.width() && p.y >= 0.0 && p.y <= whole.height();
  Visible(!inside || controlOver(p) != nullptr);
  if (!Visible()) return;
  p.x = std::max(size, std::min(p.x, whole.width() - size));
  p.y = std::max(size, std::min(p.y, whole.height() - size));
  // Past the controls there towards the middle, sideways past an upright one.
  const bool toTheRight = p.x < whole.width() / 2.0;
  const bool downwards = p.y < whole.height() / 2.0;
  while (const QWidget* control = controlOver(p)) {
    const QRect place = control->geometry();
    if (place.height() > place.width()) {
      p.x = toTheRight ? place.right() + size : place.left() - size;
    } else {
      p.y = downwards ? place.bottom() + size : place.top() - size;
    }
  }
  const Point corner = map.toUser({p.x - size / 2.0, p.y - size / 2.0});
  Left(corner.x);
  Top(corner.y);
  Width(size / std::fabs(map.xPixels));
  Height(size / std::fabs(map.yPixels));
}

Point EdgeMark::middle() const {
  const Point corner = form_.canvas().mapping().toPixel({Left(), Top()});
  return {corner.x + size / 2.0, corner.y + size / 2.0};
}

bool EdgeMark::isAt(Point user) const {
  const Point p = form_.canvas().mapping().toPixel(user);
  return Visible() && std::hypot(p.x - middle().x, p.y - middle().y) <= markReach;
}

}  // namespace lensbench
