// What the screens that draw have in common: things that can be taken, and a picture that answers.
#pragma once

#include <optional>
#include <vector>

#include <QPointF>

#include "canvas/Answer.h"
#include "canvas/qt/Form.h"
#include "screens/Context.h"
#include "screens/Halo.h"
#include "screens/Keys.h"
#include "screens/Thing.h"
#include "screens/ThingFocus.h"

class QHelpEvent;

namespace lensbench {

// The pointer's shape, a halo and the tool tips of a pointer at rest say what a press would take
// and what is drawn. All of them, and the press itself, go by takenAt() and things().
class DrawingScreen : public Form {
 public:
  // What can be taken, in the order of the Tab key. Points in user units.
  virtual std::vector<Thing> things() const = 0;
  // The thing that a press of the left button there would take.
  virtual std::optional<int> takenAt(Point p) const = 0;
  // What is drawn within reach of a point, the nearest; reach in user units.
  virtual std::optional<Answer> ask(Point p, double reach) const = 0;
  // What the mouse does that takes a thing and lets it go at p.
  virtual void put(int thing, Point p) = 0;
  // A drag in progress is left, and all is as it was before; false when there was none.
  virtual bool leaveDrag() = 0;
  // The picture in words, a Greek line and an English one, for those who cannot see it.
  virtual QString inWords() const = 0;
  // The Enter key at a thing: at a source it sends the fan or the ray.
  virtual void enter(int /*thing*/) {}
  // What stands on the picture, or stood there before it was wiped, once more with the values of
  // the moment.
  virtual void repeat() = 0;
  // Waves that move, by hand: to stand still and go on; so many steps forward, or back, while they
  // stand still; from their start. False, and nothing happens, where there are none to be worked.
  virtual bool pauseWaves() { return false; }
  virtual bool stepWaves(int /*steps*/) { return false; }
  virtual bool restartWaves() { return false; }

  // Where the keyboard is among the things.
  ThingFocus& thingFocus() noexcept { return thingFocus_; }

  // What a tool tip says there: what a press would take and what is drawn, or else the hint of the
  // drawing area, or else where help is.
  QString tipAt(Point p) const;

 protected:
  DrawingScreen(const FormDesign& design, const Context& context);

  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // Back to the screen before, as the close box goes.
  virtual void goBack() { emit CloseBox(); }

  std::optional<Thing> thingOf(int id) const;
  // The nearest point of the drawing area: the mouse presses nowhere else.
  Point withinArea(Point p) const;
  // The pointer is over that, or over nothing that a press would take.
  virtual void showPointer(Qt::CursorShape shape);

  bool eventFilter(QObject* watched, QEvent* event) override;
  // A finger also takes what it only comes near to.
  Point userPoint(const QMouseEvent& event) override;

  const Context context_;

 private:
  // Does what was asked by a key; false where it means nothing here.
  bool obey(Command command, int key);
  // The thing at the keyboard, some units along one of the axes; enters it. False without one.
  bool moveThing(Point way, double step);
  bool enterThing();
  bool stepByHand(int steps);
  void escape();

  // The pointer, without a button pressed, is there, in logical pixels; or nowhere on the picture.
  void hover(std::optional<QPointF> pixel);
  // Things may have moved under the pointer.
  void hoverAnew();
  void showTip(const QHelpEvent& event);
  Point toUser(QPointF pixel) const;

  Halo halo_;
  ThingFocus thingFocus_{*this};
  std::optional<QPointF> hovering_;
  std::optional<int> over_;  // what a press there would take
  QString tip_;              // the last one shown
  Point toThing_;            // from a finger to what it takes, user units
};

}  // namespace lensbench
