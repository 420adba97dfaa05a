#include "canvas/qt/Overlay.h"

#include <QPen>
#include <QWidget>

#include "canvas/qt/Form.h"

namespace lensbench {

Overlay::Overlay(Form& form, const QString& name) : QObject(form.drawingArea()), form_(form) {
  setObjectName(name);
}

void Overlay::Visible(bool visible) {
  change([&] { visible_ = visible; });
}

void Overlay::BorderColor(Rgb colour) {
  change([&] { borderColor_ = colour; });
}

void Overlay::BorderStyle(lensbench::BorderStyle style) {
  change([&] { borderStyle_ = style; });
}

UserMapping Overlay::mapping() const { return form_.canvas().mapping(); }

QPen Overlay::border(double width) const {
  const bool dotted = borderStyle_ == lensbench::BorderStyle::Dotted;
  return {QColor::fromRgb(opaque(painted(borderColor_))), width,
          dotted ? Qt::DotLine : Qt::SolidLine, Qt::FlatCap};
}

void Overlay::showAnew() const {
  // One pixel for the place of a point in the middle of its pixel, one for smooth edges.
  if (visible_) form_.drawingArea()->update(bounds().adjusted(-2, -2, 2, 2).toAlignedRect());
}

}  // namespace lensbench
