// What goes with the mouse on the workbench: a fan after the press that sent it, and, while
// following, what stands on the picture.
#include "screens/Shared.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {

bool kelmo::sendsFan(Point p) const {
  return grabbedAt(p) == Grab::None && !insideLens(p, fakos());
}

void kelmo::moveLive(Point p) {
  if (!live_ || !live_->goesTo(*this, p) || !sendsFan(p)) return;
  // As if the press before had not been.
  showStanding(beforePress_.standing);
  wiped_ = beforePress_.wiped;
  startFan(p);
}

void kelmo::dropLive() {
  if (live_ && live_->moved) {
    restore(beforePress_);
    context_.shared.desmiMode = desmiBeforePress_;
  }
  live_.reset();
}

poreiaaktinon::Fakos kelmo::draggedLens() const {
  const KelmoControls& c = controls_;
  poreiaaktinon::Fakos lens = fakos();
  const double x = drag_.at.x;
  if (drag_.grab == Grab::LeftCentre) lens.xc1 = releasedCentre(x, c.kentrokykloy2.Min(), 0);
  if (drag_.grab == Grab::RightCentre) lens.xc2 = releasedCentre(x, 0, c.kentrokykloy.Max());
  if (drag_.grab == Grab::LeftEdge) lens.R1 = draggedRadius(drag_, c.aktina1, xc1());
  if (drag_.grab == Grab::RightEdge) lens.R2 = draggedRadius(drag_, c.aktina2, xc2());
  return lens;
}

void kelmo::followDrag() {
  if (!following() || drag_.grab == Grab::None) return;
  // Each step of waves that run takes the lens of the controls.
  if (running()) return followValues();
  poreiaaktinon::Values now = values();
  now.bench.fakos = draggedLens();
  showStanding(repeated(standing(), now));
}

}  // namespace lensbench
