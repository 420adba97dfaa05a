// What can be taken and placed on the Ibn Sahl screen, in words and by other means than the mouse.
#include "optics/light/Edges.h"
#include "optics/protosfakos/Ask.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Outline.h"
#include "screens/Shared.h"
#include "screens/Texts.h"

namespace lensbench {
namespace {

QString edgeWords(const char* greek, const char* english, Point end, double opening) {
  return QStringLiteral(
             "%1 ακμή του διαφράγματος: το άκρο της στο %3, οπή %4. Σύρε την.\n"
             "%2 edge of the diaphragm: its end at %3, opening %4. Drag it.")
      .arg(QString::fromUtf8(greek), QString::fromUtf8(english), coordinates(end), number(opening));
}

}  // namespace

std::vector<Thing> ElSahl::things() const {
  const SahlControls& c = controls_;
  const UserMapping map = canvas().mapping();
  const light::Diafragma d = diafragma();
  const Point source{context_.shared.pigiX.value(), context_.shared.pigiY.value()};
  QPainterPath sourcePath = ringOutline(map, source);
  sourcePath.addPath(dotOutline({&c.sourceMark}));
  const auto edge = [&](const DiaphragmEdge& line, const EdgeMark& mark) {
    QPainterPath path = lineOutline(map, {line.X1(), line.Y1()}, {line.X2(), line.Y2()});
    path.addPath(dotOutline({&mark}));
    return path;
  };
  return {
      {Source,
       "Φωτεινή πηγή · Light source",
       pressedSourceWords(source),
       source,
       sourcePath,
       Qt::ArrowCursor,
       {}},
      {UpperEdge,
       "Άνω ακμή διαφράγματος · Upper edge of the diaphragm",
       edgeWords("Άνω", "Upper", {d.X, d.yA}, d.yA - d.yB),
       {d.X, d.yA},
       edge(c.Line1, c.mark1),
       Qt::CrossCursor,
       {}},
      {LowerEdge,
       "Κάτω ακμή διαφράγματος · Lower edge of the diaphragm",
       edgeWords("Κάτω", "Lower", {d.X, d.yB}, d.yA - d.yB),
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
    take({});
    return placeSource(withinArea(p));
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
