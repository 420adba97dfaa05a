#include "screens/DisplayScale.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

namespace lensbench {
namespace {

const QScreen& display() { return *QGuiApplication::primaryScreen(); }

}  // namespace

void scaleToClientArea(Form& form) {
  const double W = form.canvas().size().width();
  const double H = form.canvas().size().height();
  const double right = 600.0 * W / (W + H);
  const double top = 600.0 * H / (W + H);
  form.canvas().Scale(-right, top, right, -top);
}

double squareSide() {
  return std::min(display().geometry().height() * twipsPerPixel / 1.5,
                  display().availableGeometry().width() * twipsPerPixel);
}

void placeBeside(Form& form, double side) {
  if (form.movedByHand()) return;
  const QRect room = display().availableGeometry();
  const bool beside = side + form.Width() <= room.width() * twipsPerPixel;
  const bool below = side + form.Height() <= room.height() * twipsPerPixel;
  if (!beside && !below) return;
  form.Left(room.x() * twipsPerPixel + (beside ? side : 0.0));
  form.Top(room.y() * twipsPerPixel + (beside ? 0.0 : side));
}

}  // namespace lensbench
