#include "screens/Halo.h"

#include <QPainter>
#include <QPen>

#include "canvas/qt/Form.h"

namespace lensbench {
namespace {

// Of the two strokes that it is painted with, pixels; and how much of the picture they cover.
constexpr double outerWidth = 13.0;
constexpr double innerWidth = 7.0;
constexpr QColor glow(255, 150, 0, 56);

}  // namespace

Halo::Halo(Form& form) : Overlay(form, QStringLiteral("halo")) {
  Visible(false);
  InPicture(false);
}

void Halo::around(const QPainterPath& outline) {
  if (outline == outline_) return;
  change([&] { outline_ = outline; });
  Visible(!outline.isEmpty());
}

QRectF Halo::bounds() const {
  constexpr double margin = outerWidth / 2.0;
  return outline_.boundingRect().adjusted(-margin, -margin, margin, margin);
}

void Halo::paint(QPainter& painter) const {
  painter.setBrush(Qt::NoBrush);
  for (const double width : {outerWidth, innerWidth}) {
    painter.setPen(QPen(glow, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(outline_);
  }
}

}  // namespace lensbench
