// The two edges of the diaphragm: whether the mouse is on one, and where a dragged one goes.
#pragma once

#include "canvas/qt/LineControl.h"
#include "optics/protosfakos/SahlScreen.h"

namespace lensbench {

enum class Edge { Upper, Lower };

// Within three user units of an edge's abscissa, and between its ends.
bool liesOn(Point p, const LineControl& edge);

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
protosfakos::Diafragma released(Edge taken, Point p, const protosfakos::Diafragma& before,
                                const Reach& reach);

}  // namespace lensbench
