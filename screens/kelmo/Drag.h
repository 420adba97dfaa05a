// What the mouse can grab on the workbench, and where the grabbed thing goes when it is released.
// All points and lengths in user units.
#pragma once

#include <vector>

#include "canvas/Canvas.h"
#include "optics/light/Edges.h"
#include "optics/poreiaaktinon/Bench.h"

namespace lensbench {

enum class Grab {
  None,
  UpperBlade,
  LowerBlade,
  Diaphragm,  // both blades with the opening between them
  LeftCentre,
  RightCentre,
  LeftEdge,
  RightEdge,
  Source  // only by the mark that shows a source out of sight
};

// What a press at p takes: the diaphragm before the circles, and of these the nearest part.
Grab grabAt(Point p, const poreiaaktinon::Diafragma& diafragma, const poreiaaktinon::Fakos& fakos,
            const light::Edges& edges);

// Half the angle of the two arcs by which the edge of a circle is taken, radians.
double edgeHalfAngle(double radius);

// Inside the glass, faces included.
bool insideLens(Point p, const poreiaaktinon::Fakos& fakos);

// The drawing area and the controls that stand on it.
struct Room {
  light::Edges area;
  std::vector<light::Edges> controls;
};

// From where a released thing can be taken again: the free part around the middle of the area,
// along the axis and along the vertical at X, 3 units inside.
light::Edges reachAt(double X, const Room& room);

// The diaphragm after the grabbed part of it is let go at p. A single end follows p and stops at
// the other end; what moves stays within reach. Kept on purpose: the whole keeps its opening and
// height, and only where p is below it moves down, in tenths of the area's height.
poreiaaktinon::Diafragma releasedDiaphragm(Grab grab, Point p,
                                           const poreiaaktinon::Diafragma& before,
                                           const Room& room);

// The source let go at p, within reach.
Point releasedSource(Point p, const Room& room);

// The scroll-bar value of a centre let go at abscissa x: the nearest whole number, halves to even,
// never across the origin from its side, within lowest..highest.
int releasedCentre(double x, int lowest, int highest);
// The scroll-bar value of a radius whose edge was taken at one abscissa and let go at another: it
// changes as the distance from the centre does; clamped, then the whole number below it.
int releasedRadius(int radius, double centre, double taken, double released, int lowest,
                   int highest);

}  // namespace lensbench
