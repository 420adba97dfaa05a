// Tells where something stands that the drawing area does not show.
#pragma once

#include "canvas/qt/Shape.h"

namespace lensbench {

// Of the light source, and of the dot that stands for it.
constexpr Rgb sourceColour = RGB(255, 128, 0);

// A dot at the edge of the drawing area, clear of the controls there.
class EdgeMark : public Shape {
 public:
  EdgeMark(Form& form, const QString& name, Rgb colour);

  // Stands where the area is nearest to a point that is out of sight, user units; is not seen while
  // the point itself is.
  void follow(Point user);
  // Whether the mark is seen and the mouse is on it.
  bool isAt(Point user) const;

 private:
  Point middle() const;  // logical pixels

  Form& form_;
};

}  // namespace lensbench
