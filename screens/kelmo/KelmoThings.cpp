// What can be taken on the workbench, in words and by other means than the mouse.
#include "optics/poreiaaktinon/Ask.h"
#include "screens/Outline.h"
#include "screens/Shared.h"
#include "screens/Texts.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

using poreiaaktinon::Diafragma;

constexpr int idOf(Grab grab) { return static_cast<int>(grab); }

QString sourceWords(Point source) {
  return QStringLiteral(
             "Φωτεινή πηγή στο %1. Με Shift και πάτημα πηγαίνει αλλού και στέλνει ακτίνες.\n"
             "Light source at %1. Shift and a press take it elsewhere and send rays.")
      .arg(coordinates(source));
}

QString lostSourceWords(Point source) {
  return QStringLiteral(
             "Φωτεινή πηγή στο %1, έξω από την εικόνα. Σύρε το σημάδι της για να τη φέρεις μέσα.\n"
             "Light source at %1, out of sight. Drag its mark to bring it in.")
      .arg(coordinates(source));
}

QString bladeWords(const char* greek, const char* english, Point end, double opening) {
  return QStringLiteral(
             "%1 διάφραγμα: το άκρο του στο %3, οπή %4. Σύρε το.\n"
             "%2 blade: its end at %3, opening %4. Drag it.")
      .arg(QString::fromUtf8(greek), QString::fromUtf8(english), coordinates(end), number(opening));
}

QString diaphragmWords(const Diafragma& d) {
  return QStringLiteral(
             "Διάφραγμα στο x = %1, οπή %2 από το y = %3 ως το y = %4. Σύρε το ολόκληρο.\n"
             "Diaphragm at x = %1, opening %2 from y = %3 to y = %4. Drag it as a whole.")
      .arg(number(d.X), number(d.yA - d.yB), number(d.yB), number(d.yA));
}

QString centreWords(const char* greekCircle, const char* englishCircle, double centre) {
  return QStringLiteral(
             "Κέντρο του %1 κύκλου στο x = %3. Σύρε το πάνω στον άξονα.\n"
             "Centre of the %2 circle at x = %3. Drag it along the axis.")
      .arg(QString::fromUtf8(greekCircle), QString::fromUtf8(englishCircle), number(centre));
}

QString edgeWords(const char* greekCircle, const char* englishCircle, double radius) {
  return QStringLiteral(
             "Άκρο του %1 κύκλου, ακτίνα %3. Σύρε το για να αλλάξεις την ακτίνα.\n"
             "Edge of the %2 circle, radius %3. Drag it to change the radius.")
      .arg(QString::fromUtf8(greekCircle), QString::fromUtf8(englishCircle), number(radius));
}

}  // namespace

std::vector<Thing> kelmo::things() const {
  const KelmoControls& c = controls_;
  const UserMapping map = canvas().mapping();
  const Diafragma d = diafragma();
  const Point upperEnd{d.X, d.yA};
  const Point lowerEnd{d.X, d.yB};
  const auto blade = [&](double outer, Point end, const EdgeMark& mark) {
    QPainterPath path = lineOutline(map, {d.X, outer}, end);
    path.addPath(dotOutline({&mark}));
    return path;
  };
  const auto edge = [&](double centre, double radius) {
    return crossingOutline(map, {centre, 0.0}, radius, edgeHalfAngle(radius));
  };
  constexpr Motion free{};
  constexpr Motion sideways{.x = true, .y = false};
  constexpr Motion inUnits{.x = true, .y = false, .whole = true};
  return {
      {idOf(Grab::Source), "Φωτεινή πηγή · Light source",
       c.sourceMark.Visible() ? lostSourceWords(pigi()) : sourceWords(pigi()), pigi(),
       dotOutline({&c.pigi, &c.sourceMark}), Qt::SizeAllCursor, free},
      {idOf(Grab::UpperBlade), "Άνω διάφραγμα · Upper blade",
       bladeWords("Άνω", "Upper", upperEnd, d.yA - d.yB), upperEnd,
       blade(edges().upper, upperEnd, c.upperBladeMark), Qt::SizeAllCursor, free},
      {idOf(Grab::LowerBlade), "Κάτω διάφραγμα · Lower blade",
       bladeWords("Κάτω", "Lower", lowerEnd, d.yA - d.yB), lowerEnd,
       blade(edges().lower, lowerEnd, c.lowerBladeMark), Qt::SizeAllCursor, free},
      {idOf(Grab::Diaphragm),
       "Διάφραγμα · Diaphragm",
       diaphragmWords(d),
       {d.X, (d.yA + d.yB) / 2.0},
       lineOutline(map, {d.X, edges().upper}, {d.X, edges().lower}),
       Qt::SizeHorCursor,
       sideways},
      {idOf(Grab::LeftCentre),
       "Κέντρο αριστερού κύκλου · Centre of the left circle",
       centreWords("αριστερού", "left", xc1()),
       {xc1(), 0.0},
       ringOutline(map, {xc1(), 0.0}),
       Qt::SizeHorCursor,
       inUnits},
      {idOf(Grab::RightCentre),
       "Κέντρο δεξιού κύκλου · Centre of the right circle",
       centreWords("δεξιού", "right", xc2()),
       {xc2(), 0.0},
       ringOutline(map, {xc2(), 0.0}),
       Qt::SizeHorCursor,
       inUnits},
      // Each stands where its circle crosses the axis as a face of the lens.
      {idOf(Grab::LeftEdge),
       "Άκρο αριστερού κύκλου · Edge of the left circle",
       edgeWords("αριστερού", "left", R1()),
       {xc1() + R1(), 0.0},
       edge(xc1(), R1()),
       Qt::SizeHorCursor,
       inUnits},
      {idOf(Grab::RightEdge),
       "Άκρο δεξιού κύκλου · Edge of the right circle",
       edgeWords("δεξιού", "right", R2()),
       {xc2() - R2(), 0.0},
       edge(xc2(), R2()),
       Qt::SizeHorCursor,
       inUnits},
  };
}

std::optional<int> kelmo::takenAt(Point p) const {
  const Grab grab = grabbedAt(p);
  return grab == Grab::None ? std::nullopt : std::optional(idOf(grab));
}

std::optional<Answer> kelmo::ask(Point p, double reach) const {
  return poreiaaktinon::ask(shown(), p, reach);
}

void kelmo::put(int thing, Point p) {
  const auto taken = thingOf(thing);
  if (!taken) return;
  take(static_cast<Grab>(thing), taken->at);
  drawAnew();
  Form_MouseUp(leftButton, 0, p.x, p.y);
}

bool kelmo::leaveDrag() {
  if (!Form::endDrag()) return false;
  // A run that the press has not ended goes on.
  if (!running()) restore(beforePress_);
  context_.shared.desmiMode = desmiBeforePress_;
  return true;
}

void kelmo::enter(int thing) {
  if (thing != idOf(Grab::Source)) return;
  context_.shared.desmiMode = false;
  endRun();
  take(Grab::None, pigi());
  startFan(pigi());
  Form_MouseUp(leftButton, 0, xpigi(), ypigi());
}

}  // namespace lensbench
