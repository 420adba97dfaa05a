// The mouse on the workbench: what a press takes, how a drag is seen, what a release changes.
#include <utility>

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Tracing.h"
#include "optics/protosfakos/SahlState.h"
#include "screens/kelmo/Scene.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

constexpr int shiftKey = 1;

void centreMarkerAt(Shape& marker, Point p) {
  marker.Left(p.x - marker.Width() / 2.0);
  marker.Top(p.y + marker.Height() / 2.0);
  marker.Visible(true);
}

}  // namespace

void kelmo::Form_Click() {}

void kelmo::Form_MouseDown(int Button, int Shift, double X, double Y) {
  if (Button != leftButton) return;
  const Point p{X, Y};
  grabbed_ =
      grabAt(p, workbench_.diafragma(), workbench_.fakos(), poreiaaktinon::edgesOf(canvas()));
  grabbedDiaphragm_ = workbench_.diafragma();
  grabbedX_ = X;
  const bool shift = (Shift & shiftKey) != 0;
  if (shift && grabbed_ == Grab::None && !insideLens(p, workbench_.fakos())) {
    startFan(X, Y);
    return;
  }
  clearAndDraw();
  if (!shift) return;
  protosfakos::state().desmiMode = false;
  if (controls_.Check2.Value()) prepareWavesInTime();
  drawCardinalPoints(workbench_);
}

void kelmo::startFan(double X, double Y) {
  protosfakos::state().desmiMode = false;
  // The source moves before the scene is drawn, so that the construction of the image starts from
  // the very point that the rays start from.
  controls_.pigi.Left(X);
  controls_.pigi.Top(Y);
  clearAndDraw();
  controls_.Timer2.Interval(11500);
  controls_.Timer2.Enabled(false);
  // Waves of the old source that are still running end here: their rubbing out would eat the new
  // picture.
  if (controls_.Timer1.Interval() == runningInterval) controls_.Timer1.Interval(0);
  ticks_ = 0;
  animation_.start({poreiaaktinon::bentaliaaktinon(xc1, xc2, R1, R2, xpigi, ypigi), true});
}

void kelmo::prepareWavesInTime() {
  controls_.kymatachronika.Checked(true);
  controls_.parallilakymata.Checked(false);
  controls_.Timer2.Interval(1500);
  controls_.Timer2.Enabled(false);
  controls_.Timer1.Interval(1500);
}

void kelmo::Form_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y) {
  const Point p{X, Y};
  switch (grabbed_) {
    case Grab::None:
      return;
    case Grab::LeftCentre:
      return centreMarkerAt(controls_.Shape1, p);
    case Grab::RightCentre:
      return centreMarkerAt(controls_.Shape2, p);
    case Grab::LeftEdge:
      return showDraggedEdge(xc1.value(), draggedRadius(controls_.aktina1, xc1, X));
    case Grab::RightEdge:
      return showDraggedEdge(xc2.value(), draggedRadius(controls_.aktina2, xc2, X));
    case Grab::UpperBlade:
    case Grab::LowerBlade:
    case Grab::Diaphragm:
      return placeDiaphragm(
          releasedDiaphragm(grabbed_, p, grabbedDiaphragm_, poreiaaktinon::edgesOf(canvas())));
  }
}

int kelmo::draggedRadius(const ScrollBar& bar, const Variant& centre, double X) const {
  // An edge is taken from a few units away too; a click alone changes nothing.
  if (X == grabbedX_) return bar.Value();
  return releasedRadius(X, centre.value(), bar.Min(), bar.Max());
}

void kelmo::showDraggedEdge(double centre, int radius) {
  Shape& circle = controls_.draggedEdge;
  circle.Left(centre - radius);
  circle.Top(radius);
  circle.Width(2.0 * radius);
  circle.Height(2.0 * radius);
  circle.Visible(true);
}

void kelmo::Form_MouseUp(int Button, int /*Shift*/, double X, double Y) {
  if (Button != leftButton) return;
  reloadLens();
  const Grab released = std::exchange(grabbed_, Grab::None);
  switch (released) {
    case Grab::None:
      break;
    case Grab::LeftCentre:
      setLensValue(controls_.kentrokykloy2, releasedCentre(X, controls_.kentrokykloy2.Min(), 0));
      break;
    case Grab::RightCentre:
      setLensValue(controls_.kentrokykloy, releasedCentre(X, 0, controls_.kentrokykloy.Max()));
      break;
    case Grab::LeftEdge:
      setLensValue(controls_.aktina1, draggedRadius(controls_.aktina1, xc1, X));
      break;
    case Grab::RightEdge:
      setLensValue(controls_.aktina2, draggedRadius(controls_.aktina2, xc2, X));
      break;
    case Grab::UpperBlade:
    case Grab::LowerBlade:
    case Grab::Diaphragm:
      placeDiaphragm(
          releasedDiaphragm(released, {X, Y}, grabbedDiaphragm_, poreiaaktinon::edgesOf(canvas())));
      slidersFollowBlades();
      clearAndDraw();
      break;
  }
  for (Shape* preview : {&controls_.Shape1, &controls_.Shape2, &controls_.draggedEdge}) {
    preview->Visible(false);
  }
  if (controls_.Check2.Value()) prepareWavesInTime();
}

void kelmo::setLensValue(ScrollBar& bar, int value) {
  if (bar.Value() == value) {
    clearAndDraw();
  } else {
    bar.Value(value);
  }
}

}  // namespace lensbench
