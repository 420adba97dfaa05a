#include "screens/LiveSource.h"

#include <QApplication>

namespace lensbench {

bool hasDragged(const Form& form, Point from, Point to) {
  const UserMapping map = form.canvas().mapping();
  const Point start = map.toPixel(from);
  const Point now = map.toPixel(to);
  return QPointF(now.x - start.x, now.y - start.y).manhattanLength() >
         QApplication::startDragDistance();
}

bool isOnPicture(const Form& form, Point p) {
  const Point pixel = form.canvas().mapping().toPixel(p);
  const QPoint at = QPointF(pixel.x, pixel.y).toPoint();
  const QWidget& area = *form.drawingArea();
  return area.rect().contains(at) && area.childAt(at) == nullptr;
}

}  // namespace lensbench
