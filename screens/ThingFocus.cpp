#include "screens/ThingFocus.h"

#include <algorithm>
#include <utility>

#include <QFocusEvent>
#include <QPainter>
#include <QPainterPathStroker>

#include "screens/DrawingScreen.h"

namespace lensbench {
namespace {

constexpr double gap = 7.0;        // between a thing and its ring, pixels
constexpr double lineWidth = 2.0;  // of the ring, pixels
constexpr double casing = 1.0;     // of white on both sides of the line, pixels

// How far a stretch has to go to lie within 0..length.
double inward(double least, double most, double length) {
  if (most > length) least -= most - length;
  return least < 0.0 ? -least : std::min(0.0, length - most);
}

// The outer lines of a band around the outline.
QPainterPath ringAround(const QPainterPath& outline) {
  QPainterPathStroker stroker;
  stroker.setWidth(2.0 * gap);
  stroker.setCapStyle(Qt::RoundCap);
  stroker.setJoinStyle(Qt::RoundJoin);
  const QList<QPolygonF> lines = stroker.createStroke(outline).simplified().toSubpathPolygons();
  QPainterPath ring;
  for (const QPolygonF& line : lines) {
    const bool within = std::any_of(lines.begin(), lines.end(), [&](const QPolygonF& other) {
      return &other != &line && other.boundingRect().contains(line.boundingRect());
    });
    if (!within) ring.addPolygon(line);
  }
  return ring;
}

}  // namespace

FocusRing::FocusRing(Form& form) : Overlay(form, "focusRing"), form_(form) { InPicture(false); }

void FocusRing::around(const QPainterPath& outline) {
  if (outline == outline_) return;
  change([&] {
    outline_ = outline;
    ring_ = ringAround(outline);
    const QSizeF area = form_.drawingArea()->size();
    const QRectF place = bounds();
    if (place.intersects(QRectF(QPointF(), area))) return;
    ring_.translate(inward(place.left(), place.right(), area.width()),
                    inward(place.top(), place.bottom(), area.height()));
  });
}

QRectF FocusRing::bounds() const {
  const double beside = lineWidth / 2.0 + casing;
  return ring_.boundingRect().adjusted(-beside, -beside, beside, beside);
}

void FocusRing::paint(QPainter& painter) const {
  const QColor colour = form_.palette().color(QPalette::Highlight);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, lineWidth + 2.0 * casing));
  painter.drawPath(ring_);
  painter.setPen(QPen(colour, lineWidth));
  painter.drawPath(ring_);
}

ThingFocus::ThingFocus(DrawingScreen& screen) : screen_(screen) {
  screen.drawingArea()->installEventFilter(this);
}

void ThingFocus::open() {
  QWidget& area = *screen_.drawingArea();
  if (area.focusPolicy() != Qt::NoFocus) return;
  // By the mouse it gets no focus: who works with the mouse keeps the control.
  area.setFocusPolicy(Qt::TabFocus);
  if (screen_.focusWidget() != nullptr) return;
  // In the toolkit's order the area stands before the controls on it, and would be the first.
  QWidget* control = area.nextInFocusChain();
  while (control != &area && (control->focusPolicy() & Qt::TabFocus) == 0) {
    control = control->nextInFocusChain();
  }
  if (control != &area) control->setFocus();
}

std::optional<Thing> ThingFocus::thing() const {
  if (!id_ || !screen_.drawingArea()->hasFocus()) return std::nullopt;
  for (Thing& thing : screen_.things()) {
    if (thing.id == *id_) return std::move(thing);
  }
  return std::nullopt;
}

bool ThingFocus::step(int by) {
  const std::vector<Thing> things = screen_.things();
  const auto at = std::find_if(things.begin(), things.end(),
                               [&](const Thing& thing) { return id_ && thing.id == *id_; });
  const auto index = (at - things.begin()) + by;
  if (at == things.end() || index < 0 || index >= std::ssize(things)) return false;
  goTo(things[static_cast<std::size_t>(index)].id);
  return true;
}

void ThingFocus::goTo(std::optional<int> id) {
  id_ = id;
  follow();
  emit Moved();
}

void ThingFocus::follow() {
  const auto at = thing();
  if (ring_ == nullptr) {
    if (!at) return;
    ring_ = new FocusRing(screen_);
  }
  ring_->around(at ? at->outline : QPainterPath());
}

bool ThingFocus::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn: {
      const std::vector<Thing> things = screen_.things();
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      std::optional<int> id = id_;
      if (things.empty()) {
        id.reset();
      } else if (reason == Qt::BacktabFocusReason) {
        id = things.back().id;
      } else if (reason == Qt::TabFocusReason || !id) {
        id = things.front().id;
      }
      goTo(id);
      return false;
    }
    case QEvent::FocusOut:
      goTo(id_);
      return false;
    case QEvent::Paint:
      // The thing may have moved since.
      follow();
      return false;
    case QEvent::KeyPress: {
      // The toolkit would take the Tab key on to the next control.
      const Key* key = keyOf(*static_cast<QKeyEvent*>(event));
      if (key == nullptr) return false;
      if (key->command == Command::NextThing) return next();
      return key->command == Command::PreviousThing && previous();
    }
    default:
      return false;
  }
}

}  // namespace lensbench
