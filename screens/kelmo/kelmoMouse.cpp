// The mouse on the workbench: what a press takes, how a drag is seen, what a release changes.
#include <utility>

#include "screens/Shared.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

constexpr int shiftKey = 1;

bool takesDiaphragm(Grab grab) {
  return grab == Grab::UpperBlade || grab == Grab::LowerBlade || grab == Grab::Diaphragm;
}

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
  beforePress_ = state();
  desmiBeforePress_ = context_.shared.desmiMode;
  live_.reset();
  take(grabbedAt(p), p);
  if ((Shift & shiftKey) == 0) return drag_.grab == Grab::None ? wipe() : drawAnew();
  if (sendsFan(p)) live_ = LiveSource{p};
  context_.shared.desmiMode = false;
  endRun();
  if (live_) return startFan(p);
  clearAndDraw();
  if (controls_.Check2.Value()) prepareWavesInTime();
  add(poreiaaktinon::CardinalMarks{fakos(), n(), pigi()});
}

void kelmo::take(Grab grab, Point p) { drag_ = {grab, p, p, diafragma(), pigi()}; }

Grab kelmo::grabbedAt(Point p) const {
  if (controls_.upperBladeMark.isAt(p)) return Grab::UpperBlade;
  if (controls_.lowerBladeMark.isAt(p)) return Grab::LowerBlade;
  if (controls_.sourceMark.isAt(p)) return Grab::Source;
  return grabAt(p, diafragma(), fakos(), edges());
}

Room kelmo::room() const {
  Room room{edges(), {}};
  const UserMapping map = canvas().mapping();
  for (const QWidget* control : drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (!control->isVisibleTo(drawingArea())) continue;
    const QRectF place = control->geometry();
    const Point upperLeft = map.toUser({place.left(), place.top()});
    const Point lowerRight = map.toUser({place.right(), place.bottom()});
    room.controls.push_back({upperLeft.x, lowerRight.x, lowerRight.y, upperLeft.y});
  }
  return room;
}

void kelmo::Form_MouseMove(int Button, int Shift, double X, double Y) {
  drag_.at = {X, Y};
  if ((Button & leftButton) != 0 && (Shift & shiftKey) != 0) moveLive({X, Y});
  showDrag();
}

void kelmo::showDrag() {
  placeDragged();
  followDrag();
}

void kelmo::placeDragged() {
  switch (drag_.grab) {
    case Grab::None:
      return;
    case Grab::LeftCentre:
      return centreMarkerAt(controls_.Shape1, drag_.at);
    case Grab::RightCentre:
      return centreMarkerAt(controls_.Shape2, drag_.at);
    case Grab::LeftEdge:
      return showDraggedEdge(xc1(), draggedRadius(drag_, controls_.aktina1, xc1()));
    case Grab::RightEdge:
      return showDraggedEdge(xc2(), draggedRadius(drag_, controls_.aktina2, xc2()));
    case Grab::UpperBlade:
    case Grab::LowerBlade:
    case Grab::Diaphragm:
      return placeDiaphragm(releasedDiaphragm(drag_.grab, drag_.at, drag_.diafragma, room()));
    case Grab::Source:
      return placeSource(releasedSource(drag_.at, room()));
  }
}

int kelmo::draggedRadius(const Drag& drag, const ScrollBar& bar, double centre) {
  return releasedRadius(bar.Value(), centre, drag.taken.x, drag.at.x, bar.Min(), bar.Max());
}

void kelmo::showDraggedEdge(double centre, int radius) {
  Shape& circle = controls_.draggedEdge;
  circle.Left(centre - radius);
  circle.Top(radius);
  circle.Width(2.0 * radius);
  circle.Height(2.0 * radius);
  circle.Visible(true);
}

kelmo::Drag kelmo::endDrag() {
  for (Shape* preview : {&controls_.Shape1, &controls_.Shape2, &controls_.draggedEdge}) {
    preview->Visible(false);
  }
  return std::exchange(drag_, {});
}

void kelmo::dropDrag() {
  dropLive();
  const Drag dropped = endDrag();
  if (dropped.grab == Grab::None) return;
  if (dropped.grab == Grab::Source) placeSource(dropped.pigi);
  if (takesDiaphragm(dropped.grab)) {
    placeDiaphragm(dropped.diafragma);
    slidersFollowBlades();
    passFronts(dropped.diafragma);
  }
  followValues();
}

void kelmo::Form_MouseUp(int Button, int Shift, double X, double Y) {
  if (Button != leftButton) return;
  drag_.at = {X, Y};
  if (live_ && live_->moved && (Shift & shiftKey) != 0) moveLive({X, Y});
  live_.reset();
  showDrag();
  release(endDrag());
  if (controls_.Check2.Value()) prepareWavesInTime();
}

void kelmo::release(const Drag& drag) {
  KelmoControls& c = controls_;
  switch (drag.grab) {
    case Grab::None:
      return;
    case Grab::LeftCentre:
      return setLensValue(c.kentrokykloy2, releasedCentre(drag.at.x, c.kentrokykloy2.Min(), 0));
    case Grab::RightCentre:
      return setLensValue(c.kentrokykloy, releasedCentre(drag.at.x, 0, c.kentrokykloy.Max()));
    case Grab::LeftEdge:
      return setLensValue(c.aktina1, draggedRadius(drag, c.aktina1, xc1()));
    case Grab::RightEdge:
      return setLensValue(c.aktina2, draggedRadius(drag, c.aktina2, xc2()));
    case Grab::UpperBlade:
    case Grab::LowerBlade:
    case Grab::Diaphragm:
      slidersFollowBlades();
      return drawAnew();
    case Grab::Source:
      moveFan();
      return drawAnew();
  }
}

void kelmo::setLensValue(ScrollBar& bar, int value) {
  if (bar.Value() == value) {
    drawAnew();
  } else {
    bar.Value(value);
  }
}

}  // namespace lensbench
