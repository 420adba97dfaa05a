// What the screens that draw have in common: things that can be taken, and a picture that answers.
#pragma once

#include <optional>
#include <vector>

#include "canvas/Answer.h"
#include "canvas/qt/Form.h"
#include "screens/Context.h"
#include "screens/Thing.h"

namespace lensbench {

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
  // The Enter key at a thing: at a source it sends the fan or the ray.
  virtual void enter(int /*thing*/) {}

 protected:
  DrawingScreen(const FormDesign& design, const Context& context);

  const Context context_;
};

}  // namespace lensbench
