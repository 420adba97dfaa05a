// What can be placed on the single-ray screen, in words and by other means than the mouse.
#include "optics/poreiaaktinon/Ask.h"
#include "screens/Outline.h"
#include "screens/Texts.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {
namespace {

QString aimWords(Point aim) {
  return QStringLiteral(
             "Στόχος της ακτίνας στο %1. Άφησε το κουμπί αλλού για να τη στείλεις εκεί.\n"
             "Aim of the ray at %1. Release the button elsewhere to send it there.")
      .arg(coordinates(aim));
}

}  // namespace

Point moniaktina::aim() const {
  return aimed_.value_or(Point{controls_.fos.Left() / 2.0, controls_.fos.Top() / 2.0});
}

std::vector<Thing> moniaktina::things() const {
  const QString feared = warning(aim());
  const Point corner{controls_.fos.Left(), controls_.fos.Top()};
  return {
      // A press puts the corner of the mark, not its middle, where the mouse is.
      {Source,
       "Φωτεινή πηγή · Light source",
       pressedSourceWords(controls_.source()),
       corner,
       dotOutline({&controls_.fos, &controls_.sourceMark}),
       Qt::ArrowCursor,
       {}},
      {Aim,
       "Στόχος της ακτίνας · Aim of the ray",
       feared.isEmpty() ? aimWords(aim()) : feared,
       aim(),
       ringOutline(canvas().mapping(), aim()),
       Qt::ArrowCursor,
       {}},
  };
}

std::optional<int> moniaktina::takenAt(Point /*p*/) const { return std::nullopt; }

std::optional<Answer> moniaktina::ask(Point p, double reach) const {
  return poreiaaktinon::single::ask(shown(), p, reach);
}

void moniaktina::put(int thing, Point p) {
  if (thing == Aim) return Form_MouseUp(leftButton, 0, p.x, p.y);
  const Point pressed = withinArea(p);
  Form_MouseDown(leftButton, 0, pressed.x, pressed.y);
  dragEnded();
  followValues();
}

bool moniaktina::leaveDrag() {
  if (!Form::endDrag()) return false;
  restore(beforePress_);
  return true;
}

void moniaktina::enter(int /*thing*/) { put(Aim, aim()); }

}  // namespace lensbench
