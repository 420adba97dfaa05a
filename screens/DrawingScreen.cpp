#include "screens/DrawingScreen.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QChildEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QToolTip>

#include "canvas/qt/DrawingArea.h"
#include "optics/light/Edges.h"

namespace lensbench {
namespace {

constexpr double reach = 6.0;         // of a question around the pointer, pixels
constexpr double fingerReach = 18.0;  // of a finger around its middle, pixels

const QString helpLine = QStringLiteral(
    "F1: βοήθεια, τα πλήκτρα και όσα πιάνονται εδώ.\n"
    "F1: help, the keys and what can be taken here.");

double distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

}  // namespace

DrawingScreen::DrawingScreen(const FormDesign& design, const Context& context)
    : Form(design), context_(context), halo_(*this) {
  drawingArea()->installEventFilter(this);
  area().describeBy([this] {
    // What the keyboard is on comes first, for that is what was asked about.
    const auto thing = thingFocus_.thing();
    return (thing ? thing->words + QLatin1Char('\n') : QString()) + inWords();
  });
  connect(&thingFocus_, &ThingFocus::Moved, &area(), &DrawingArea::tellWords);
}

std::optional<Thing> DrawingScreen::thingOf(int id) const {
  for (Thing& thing : things()) {
    if (thing.id == id) return std::move(thing);
  }
  return std::nullopt;
}

Point DrawingScreen::withinArea(Point p) const {
  const light::Edges area = light::edgesOf(canvas());
  return {std::clamp(p.x, area.left, area.right), std::clamp(p.y, area.lower, area.upper)};
}

Point DrawingScreen::toUser(QPointF pixel) const {
  return canvas().mapping().toUser({pixel.x(), pixel.y()});
}

QString DrawingScreen::tipAt(Point p) const {
  const UserMapping map = canvas().mapping();
  const auto answer = ask(p, reach / std::fabs(map.xPixels));
  const auto answered = [&] { return QString::fromStdString(answer->text); };
  if (const auto taken = takenAt(p)) {
    const Thing thing = *thingOf(*taken);
    // What the picture itself calls by the same place needs no second name.
    const bool more = answer && (answer->event || distance(answer->at, thing.at) > 0.0);
    return more ? thing.words + QLatin1Char('\n') + answered() : thing.words;
  }
  if (answer && answer->event) return answered();
  for (const Thing& thing : things()) {
    if (distance(map.toPixel(thing.at), map.toPixel(p)) <= reach) return thing.words;
  }
  if (answer) return answered();
  const QString hint = drawingArea()->toolTip();
  return hint.isEmpty() ? helpLine : hint + QLatin1Char('\n') + helpLine;
}

void DrawingScreen::showPointer(Qt::CursorShape shape) { drawingArea()->setCursor(shape); }

void DrawingScreen::hover(std::optional<QPointF> pixel) {
  hovering_ = pixel;
  const auto before = over_;
  over_ = pixel ? takenAt(toUser(*pixel)) : std::nullopt;
  const auto thing = over_ ? thingOf(*over_) : std::nullopt;
  halo_.around(thing ? thing->outline : QPainterPath());
  if (over_ != before) showPointer(thing ? thing->shape : Qt::ArrowCursor);
  if (pixel && QToolTip::isVisible() && QToolTip::text() == tip_ && tip_ != tipAt(toUser(*pixel))) {
    QToolTip::hideText();
  }
}

void DrawingScreen::hoverAnew() {
  if (hovering_) hover(hovering_);
}

void DrawingScreen::showTip(const QHelpEvent& event) {
  tip_ = tipAt(toUser(event.pos()));
  QToolTip::showText(event.globalPos(), tip_, drawingArea());
}

bool DrawingScreen::eventFilter(QObject* watched, QEvent* event) {
  if (watched != drawingArea()) {
    // The toolkit does not say that the pointer leaves the picture for a control that stands on it.
    if (event->type() == QEvent::Enter && watched->parent() == drawingArea()) hover({});
    return Form::eventFilter(watched, event);
  }
  switch (event->type()) {
    case QEvent::MouseMove: {
      const auto& move = static_cast<const QMouseEvent&>(*event);
      if (move.buttons() == Qt::NoButton) hover(move.position());
      break;
    }
    case QEvent::MouseButtonPress:
      // The shape stays while the thing is held.
      hovering_.reset();
      halo_.around({});
      break;
    case QEvent::Leave:
      hover({});
      break;
    case QEvent::Paint:
      hoverAnew();
      break;
    case QEvent::ChildAdded:
      static_cast<const QChildEvent&>(*event).child()->installEventFilter(this);
      break;
    case QEvent::ToolTip:
      showTip(static_cast<const QHelpEvent&>(*event));
      return true;
    default:
      break;
  }
  return Form::eventFilter(watched, event);
}

Point DrawingScreen::userPoint(const QMouseEvent& event) {
  const Point p = Form::userPoint(event);
  if (event.type() == QEvent::MouseButtonPress) {
    toThing_ = {};
    const bool finger = event.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen;
    constexpr int directions = 24;
    for (double away = 2.0; finger && !takenAt(p) && away <= fingerReach; away += 2.0) {
      for (int i = 0; i < directions; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / directions;
        const QPointF aside(away * std::cos(angle), away * std::sin(angle));
        const Point near = toUser(event.position() + aside);
        if (!takenAt(near)) continue;
        toThing_ = {near.x - p.x, near.y - p.y};
        return near;
      }
    }
  }
  return {p.x + toThing_.x, p.y + toThing_.y};
}

}  // namespace lensbench
