#include "canvas/qt/Control.h"

namespace lensbench {

QRect inPixels(const Place& place) {
  return QRectF(place.left / twipsPerPixel, place.top / twipsPerPixel, place.width / twipsPerPixel,
                place.height / twipsPerPixel)
      .toRect();
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
