// What can be taken and placed on the Ibn Sahl screen, in words and by other means than the mouse.
#include <algorithm>

#include "optics/light/Edges.h"
#include "optics/protosfakos/Ask.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Outline.h"
#include "screens/Shared.h"
#include "screens/Texts.h"

namespace lensbench {
namespace {

constexpr double sourceRing = 5.0;  // radius of the outline of the source, pixels

QString sourceWords(Point source) {
  return QStringLiteral(
             "Φωτεινή πηγή στο %1. Πάτησε αλλού για να τη βάλεις εκεί.\n"
             "Light source at %1. Press elsewhere to place it there.")
      .arg(coordinates(source));
}

QString upperEdgeWords(const light::Diafragma& d) {
  return QStringLiteral(
             "Άνω ακμή του διαφράγματος: το άκρο της στο %1, οπή %2. Σύρε την.\n"
             "Upper edge of the diaphragm: its end at %1, opening %2. Drag it.")
      .arg(coordinates({d.X, d.yA}), number(d.yA - d.yB));
}

QString lowerEdgeWords(const light::Diafragma& d) {
  return QStringLiteral(
             "Κάτω ακμή του διαφράγματος: το άκρο της στο %1, οπή %2. Σύρε την.\n"
             "Lower edge of the diaphragm: its end at %1, opening %2. Drag it.")
      .arg(coordinates({d.X, d.yB}), number(d.yA - d.yB));
}

}  // namespace

std::vector<Thing> ElSahl::things() const {
  const SahlControls& c = controls_;
  const UserMapping map = canvas().mapping();
  const light::Diafragma d = diafragma();
  const Point source{context_.shared.pigiX.value(), context_.shared.pigiY.value()};
  QPainterPath sourcePath = ringOutline(map, source, sourceRing);
  sourcePath.addPath(dotOutline({&c.sourceMark}));
  const auto edge = [&](const DiaphragmEdge& line, const EdgeMark& mark) {
    QPainterPath path = lineOutline(map, {line.X1(), line.Y1()}, {line.X2(), line.Y2()});
    path.addPath(dotOutline({&mark}));
    return path;
  };
  return {
      {Source,
       "Φωτεινή πηγή · Light source",
       sourceWords(source),
       source,
       sourcePath,
       Qt::ArrowCursor,
       {}},
      {UpperEdge,
       "Άνω ακμή διαφράγματος · Upper edge of the diaphragm",
       upperEdgeWords(d),
       {d.X, d.yA},
       edge(c.Line1, c.mark1),
       Qt::CrossCursor,
       {}},
      {LowerEdge,
       "Κάτω ακμή διαφράγματος · Lower edge of the diaphragm",
       lowerEdgeWords(d),
       {d.X, d.yB},
       edge(c.Line2, c.mark2),
       Qt::CrossCursor,
       {}},
  };
}

std::optional<int> ElSahl::takenAt(Point p) const {
  if (controls_.onUpperEdge(p)) return UpperEdge;
  if (controls_.onLowerEdge(p)) return LowerEdge;
  return std::nullopt;
}

std::optional<Answer> ElSahl::ask(Point p, double reach) const {
  return protosfakos::ask(shown(), p, reach);
}

// Form_MouseMove shows it.
void ElSahl::showPointer(Qt::CursorShape /*shape*/) {}

void ElSahl::put(int thing, Point p) {
  context_.shared.onlyWavesAsked = false;
  if (thing == Source) {
    // The mouse presses on the drawing area only.
    const light::Edges area = light::edgesOf(canvas());
    take({});
    return placeSource(
        {std::clamp(p.x, area.left, area.right), std::clamp(p.y, area.lower, area.upper)});
  }
  take(thing);
  Form_MouseUp(leftButton, 0, p.x, p.y);
}

bool ElSahl::leaveDrag() {
  if (!Form::endDrag()) return false;
  putBack();
  return true;
}

void ElSahl::enter(int thing) {
  if (thing == Source) put(Source, {context_.shared.pigiX.value(), context_.shared.pigiY.value()});
}

}  // namespace lensbench
