#include "canvas/qt/Control.h"

#include <QGuiApplication>

#include "canvas/qt/Contrast.h"

namespace lensbench {

QRect inPixels(const Place& place) {
  return QRectF(place.left / twipsPerPixel, place.top / twipsPerPixel, place.width / twipsPerPixel,
                place.height / twipsPerPixel)
      .toRect();
}

namespace {

bool highContrast(const QPalette& colours) {
  // Black and white are 21 to 1, black and yellow 19.6; the ordinary themes stay below 18.5.
  return contrast(colours.color(QPalette::Window), colours.color(QPalette::WindowText)) > 19.0;
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

QString withWarning(const QString& toolTip, const QString& warning) {
  return toolTip.isEmpty() ? warning : toolTip + QStringLiteral("\n\n") + warning;
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
