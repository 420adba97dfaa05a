// The two edges of the diaphragm: whether the mouse is on one, and where a dragged one goes.
#pragma once

#include "canvas/qt/Form.h"
#include "canvas/qt/LineControl.h"
#include "optics/light/Stop.h"

namespace lensbench {

enum class Edge { Upper, Lower };

// One of them as it is seen: from its inner end, (X2, Y2), past the outer end, (X1, Y1), to the
// edge of the drawing area.
class DiaphragmEdge : public LineControl {
 public:
  DiaphragmEdge(Form& form, const QString& name, const Ends& ends)
      : LineControl(form, name, ends), form_(form) {}

  // Within three user units of the abscissa, and no nearer to the other edge than the inner end.
  bool isAt(Point p) const;

 protected:
  QLineF onScreen() const override;

 private:
  Form& form_;
};

// What the mouse reaches of the drawing area, user units: below the option buttons.
struct Reach {
  double left = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  double top = 0.0;
};

// The diaphragm after one of its edges, taken while the diaphragm stood as before, is let go at p:
// both edges stand at the abscissa of p, the inner end of the taken one at its ordinate. Where that
// would cross the other inner end, the other is pushed beyond it by a tenth of the ordinate. Both
// ends stay within reach, far enough inside its top and bottom for the mouse to take them again.
light::Diafragma released(Edge taken, Point p, const light::Diafragma& before, const Reach& reach);

}  // namespace lensbench
