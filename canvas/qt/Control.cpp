#include "canvas/qt/Control.h"

#include <algorithm>
#include <cmath>

#include <QGuiApplication>

namespace lensbench {

QRect inPixels(const Place& place) {
  return QRectF(place.left / twipsPerPixel, place.top / twipsPerPixel, place.width / twipsPerPixel,
                place.height / twipsPerPixel)
      .toRect();
}

namespace {

// Share of white light that a colour gives back, as the eye weighs it: 0 black, 1 white.
double luminance(const QColor& colour) {
  const auto linear = [](double v) {
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

bool highContrast(const QPalette& colours) {
  const double window = luminance(colours.color(QPalette::Window));
  const double text = luminance(colours.color(QPalette::WindowText));
  // Black and white are 21 to 1, black and yellow 19.6; the ordinary themes stay below 18.5.
  return (std::max(window, text) + 0.05) / (std::min(window, text) + 0.05) > 19.0;
}

}  // namespace

QPalette coloursOn(const QColor& background) {
  const QPalette desktop = QGuiApplication::palette();
  if (background == desktop.color(QPalette::Window)) return {};
  if (!highContrast(desktop)) return {QColor(239, 239, 239), background};
  QPalette plate;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto role : {QPalette::Window, QPalette::WindowText}) {
      plate.setColor(group, role, desktop.color(group, role));
    }
    // The styles draw the edge of a box in a darker shade of the background, of which black has
    // none: the box is as bright as the words, and its mark as dark as the plate.
    plate.setColor(group, QPalette::Base, desktop.color(group, QPalette::WindowText));
    plate.setColor(group, QPalette::Text, desktop.color(group, QPalette::Window));
  }
  return plate;
}

void describe(QWidget& widget, const QString& accessibleName, const QString& toolTip) {
  widget.setAccessibleName(accessibleName);
  widget.setAccessibleDescription(toolTip);
  widget.setToolTip(toolTip);
}

void describe(QAction& action, const QString& accessibleName, const QString& toolTip) {
  action.setToolTip(toolTip);
  action.setStatusTip(accessibleName);
  action.setWhatsThis(toolTip);
}

}  // namespace lensbench
